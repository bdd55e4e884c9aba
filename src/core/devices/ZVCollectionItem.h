#pragma once

#include "interface/CollectionView.h"
#include "interface/Property.h"
#include "platform/StringTable.h"

namespace zarvil {

class ZVCollectionItem;

/// Capability of a collection view's delegate: it is told when the user ticked or unticked an
/// item. The item may leave its list, and the view may drop it, during the call.
class DeviceStateDelegate : NonCopyable {
public:
    virtual ~DeviceStateDelegate() = default;

    virtual void stateDidChange(ZVCollectionItem& item) = 0;
};

/// Shows one device record with a check box: ticked means saved for watching.
class ZVCollectionItem final : public CollectionViewItem {
public:
    /// The table must outlive the item.
    explicit ZVCollectionItem(const StringTable& strings) : strings_(strings) {}

    // Events in.
    /// The user clicked the check box: takes the new state and tells the delegate.
    void userDidSetState(unsigned long state);
    /// The check box's action, sent when `state` has its new value already.
    void toggleSelectDevice();

    // State.
    /// 0 not saved, 1 saved.
    [[nodiscard]] unsigned long state() const { return state_; }
    void setState(unsigned long state);

    // Texts, fit for display.
    [[nodiscard]] std::string name() const;
    /// Vendor and serial number, below the name.
    [[nodiscard]] std::string detail() const;
    /// All three, longer, a line each.
    [[nodiscard]] std::string toolTip() const;
    /// What an assistive program calls the row.
    [[nodiscard]] std::string spokenName() const;

    /// The card that the item stands on; made when first asked for, as thousands of items have one.
    [[nodiscard]] View& note();

private:
    [[nodiscard]] std::string text(std::string_view key, std::size_t limit) const;
    [[nodiscard]] std::string name(std::size_t limit) const;
    [[nodiscard]] std::string serial(std::size_t limit) const;
    [[nodiscard]] std::string joined(std::string_view separator, std::size_t limit) const;

    const StringTable& strings_;
    unsigned long state_ = 0;
    std::unique_ptr<View> note_;
};

/// A device's place in a list that is sorted by name.
[[nodiscard]] std::string deviceSortKey(const MutableRecord& device);

} // namespace zarvil
