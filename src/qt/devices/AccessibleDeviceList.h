#pragma once

#include "interface/ArrayController.h"
#include "interface/HashIndex.h"
#include "protocol/NonCopyable.h"

#include <QAccessibleWidget>

namespace zarvil::qt {

class AccessibleDeviceRow;
class DeviceListView;

/// What assistive programs see of a list of devices: its rows, as children that can be ticked. A
/// row that was read once is known by its serial, so it stays itself while others come and go, and
/// the end of one row touches no other.
class AccessibleDeviceList final : public QAccessibleWidget, NonCopyable {
public:
    /// Belongs to the toolkit's cache, which drops it with the view.
    explicit AccessibleDeviceList(DeviceListView* view);

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int row) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

    /// A row has gone.
    void forget(RecordSerial serial);
    void forgetAll();

    [[nodiscard]] DeviceListView* view() const;

protected:
    ~AccessibleDeviceList() override;

private:
    friend class AccessibleDeviceRow;
    /// Those that were read, until they end. Making one changes nothing that its reader can see.
    mutable HashIndex<AccessibleDeviceRow> rows_;
};

} // namespace zarvil::qt
