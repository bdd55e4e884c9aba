#pragma once

#include "interface/CollectionView.h"
#include "interface/TextField.h"
#include "pane/Platform.h"
#include "scripts/ScriptFile.h"
#include "scripts/ScriptProgress.h"

#include <memory>
#include <string>
#include <vector>

namespace zarvil {

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

/// A text field in the system font, for editing within a script's card.
class ScriptEditField final : public TextField {
public:
    ScriptEditField(Rect frame, double fontSize) : fontSize_(fontSize) { setFrame(frame); }

    /// In points of the card.
    [[nodiscard]] double fontSize() const { return fontSize_; }

private:
    double fontSize_;
};

/// The card that a script item stands on: points from the lower left, y upwards. A layout shows
/// it at least at `minimumSize`, with the edit fields that it holds at the moment.
class ScriptItemView final : public View {
public:
    using Subviews = std::vector<std::shared_ptr<ScriptEditField>>;
    static constexpr Size minimumSize{578, 134};

    /// Back to front.
    [[nodiscard]] const Subviews& subviews() const { return subviews_.get(); }
    [[nodiscard]] const Property<Subviews>& subviewsProperty() const { return subviews_; }
    /// Takes a share in the fields and lays them over the others, the last one on top.
    void addSubviews(const Subviews& fields);
    void removeSubview(const ScriptEditField* field);

private:
    Property<Subviews> subviews_;
};

/// Shows one script and lets the user edit, run and delete it. It edits the record that it shares
/// with the list. Its actions are handlers; an item that a shared pointer holds outlives them.
class ZVScriptCollectionItem final : public CollectionViewItem,
                                     public std::enable_shared_from_this<ZVScriptCollectionItem> {
public:
    /// The ports and the progress must outlive the item.
    ZVScriptCollectionItem(Platform& platform, ScriptProgress& progress)
        : platform_(platform), progress_(progress) {}

    // Actions.
    /// Begins editing, or ends it and saves: the old file goes, then the new one is written.
    void edit(Control* sender = nullptr);
    /// Runs the script once; saves first while editing. The pane is blocked until it has ended.
    void execute(Control* sender = nullptr);
    /// Deletes the file and has the owner drop the record.
    void remove(Control* sender = nullptr);

    /// Takes the edit fields over into the record. An emptied field keeps the record's old value.
    void validateData();
    /// Deletes the file of the record's title; a record without a title deletes nothing.
    void removeFile();

    // State.
    [[nodiscard]] bool editing() const { return editing_; }
    /// The flag alone; `edit` brings the fields.
    void setEditing(bool editing) { editing_ = editing; }

    /// Null for an item that no record was handed to.
    [[nodiscard]] const Record& data() const { return data_; }
    void setData(Record data) { data_ = std::move(data); }
    /// Asked for the capability `ScriptOwner`; not owned.
    [[nodiscard]] CollectionViewDelegate* owner() const { return owner_; }
    void setOwner(CollectionViewDelegate* owner) { owner_ = owner; }
    /// An outlet for the layout; no operation uses it. Not owned.
    [[nodiscard]] TextField* text() const { return text_; }
    void setText(TextField* text) { text_ = text; }

    [[nodiscard]] ScriptItemView& view() { return view_; }
    /// The edit fields; null unless editing. The view owns them.
    [[nodiscard]] ScriptEditField* eTitle() const { return eTitle_; }
    [[nodiscard]] ScriptEditField* eText() const { return eText_; }

private:
    [[nodiscard]] const std::string* stringOfRecord(std::string_view key) const;
    void runAsHandler(void (ZVScriptCollectionItem::*operation)());
    void toggleEditing();
    void executeNow();
    void removeNow();
    void beginEditing();
    void save();
    void storeEdited(std::string_view key, const ScriptEditField* field, std::string_view fallback);

    Platform& platform_;
    ScriptProgress& progress_;
    ScriptItemView view_;
    ScriptEditField* eTitle_ = nullptr;
    ScriptEditField* eText_ = nullptr;
    bool editing_ = false;
    Record data_;
    CollectionViewDelegate* owner_ = nullptr;
    TextField* text_ = nullptr;
};

} // namespace zarvil
