#include "devices/ZVCollectionItem.h"

namespace zarvil {

void ZVCollectionItem::userDidSetState(unsigned long state) {
    setState(state);
    toggleSelectDevice();
}

void ZVCollectionItem::toggleSelectDevice() {
    if (!collectionView())
        return;
    if (auto* delegate = dynamic_cast<DeviceStateDelegate*>(collectionView()->delegate()))
        delegate->stateDidChange(*this);
}

} // namespace zarvil
