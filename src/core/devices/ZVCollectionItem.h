#pragma once

#include "interface/CollectionView.h"
#include "interface/Property.h"
#include "protocol/NonCopyable.h"

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
    // Events in.
    /// The user clicked the check box: takes the new state and tells the delegate.
    void userDidSetState(unsigned long state);
    /// The check box's action, sent when `state` has its new value already.
    void toggleSelectDevice();

    // State.
    /// 0 not saved, 1 saved.
    [[nodiscard]] unsigned long state() const { return state_.get(); }
    void setState(unsigned long state) { state_.set(state); }
    [[nodiscard]] const Property<unsigned long>& stateProperty() const { return state_; }

    /// The card that the item stands on.
    [[nodiscard]] View& note() { return note_; }

private:
    Property<unsigned long> state_{0};
    View note_;
};

} // namespace zarvil
