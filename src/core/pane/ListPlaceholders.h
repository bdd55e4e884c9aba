#pragma once

#include "interface/Button.h"
#include "interface/CollectionView.h"
#include "interface/Placeholder.h"
#include "platform/StringTable.h"
#include "protocol/NonCopyable.h"

#include <vector>

namespace zarvil {

/// What stands in place of the rows of the pane's empty lists. It follows the lists and changes
/// none of them.
class ListPlaceholders : NonCopyable {
public:
    /// What the placeholders follow. Nothing is owned; all must outlive them.
    struct Lists {
        const CollectionView& connected;
        const CollectionView& watched;
        const CollectionView& scripts;
        const Button& useScripts;
    };

    ListPlaceholders(Lists lists, const StringTable& strings);

    Placeholder noneConnected;
    Placeholder noneWatched;
    /// Across both lists of devices, their headings included: nobody tells which there are.
    Placeholder devicesUnknown;
    Placeholder noScripts;

private:
    void showDevices();
    void showScripts();
    [[nodiscard]] Placeholder::Text text(Symbol symbol, std::string_view title,
                                         std::string_view words) const;
    [[nodiscard]] Placeholder::Text scriptsText() const;

    Lists lists_;
    const StringTable& strings_;
    std::vector<Subscription> changes_;
};

} // namespace zarvil
