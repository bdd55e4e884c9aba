#pragma once

#include "interface/CollectionView.h"
#include "interface/TextField.h"
#include "pane/Platform.h"

#include <memory>
#include <string_view>

namespace zarvil {

/// Folder of the user's shutdown scripts, its tilde not expanded; shared with the agent.
inline constexpr std::string_view kZVScriptingFolder = "~/Library/Zarvil Scripts";

namespace script {

inline constexpr std::string_view title = "kZVScriptTitle";
inline constexpr std::string_view text = "kZVScriptText";
inline constexpr std::string_view fileExtension = "zvscript";

} // namespace script

/// Capability of an item's owner: it drops a record whose file is gone. The item may be released
/// during the call.
class ScriptOwner {
public:
    ScriptOwner() = default;
    ScriptOwner(const ScriptOwner&) = delete;
    ScriptOwner& operator=(const ScriptOwner&) = delete;
    virtual ~ScriptOwner() = default;

    virtual void removeScript(const Record& record) = 0;
};

/// Shows one script and lets the user edit, run and delete it.
class ZVScriptCollectionItem final : public CollectionViewItem {
public:
    explicit ZVScriptCollectionItem(Platform& platform) : platform_(platform) {}

    void setData(Record data) { data_ = std::move(data); }
    [[nodiscard]] const Record& data() const { return data_; }
    /// Asked for the capability `ScriptOwner`; not owned.
    void setOwner(CollectionViewDelegate* owner) { owner_ = owner; }
    [[nodiscard]] CollectionViewDelegate* owner() const { return owner_; }

private:
    Platform& platform_;
    Record data_;
    CollectionViewDelegate* owner_ = nullptr;
};

} // namespace zarvil
