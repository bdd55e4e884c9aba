#pragma once

#include "interface/View.h"

namespace zarvil {

/// A row that stands out by a ground of its own while what it says is urgent.
class Banner : public View {
public:
    void setProminent(bool prominent) { prominent_.set(prominent); }
    [[nodiscard]] bool isProminent() const { return prominent_.get(); }
    [[nodiscard]] const Property<bool>& prominentProperty() const { return prominent_; }

private:
    Property<bool> prominent_{false};
};

} // namespace zarvil
