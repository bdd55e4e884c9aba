#pragma once

#include "interface/CollectionView.h"
#include "interface/Symbol.h"
#include "interface/TextField.h"
#include "pane/Platform.h"
#include "protocol/NonCopyable.h"
#include "scripts/ScriptFile.h"
#include "scripts/ScriptProgress.h"

#include <memory>
#include <string>
#include <vector>

namespace zarvil {

/// Capability of an item's owner: it drops a record whose file is gone. The item may be released
/// during the call.
class ScriptOwner : NonCopyable {
public:
    virtual ~ScriptOwner() = default;

    virtual void removeScript(const Record& record) = 0;
    /// Asked before an item writes or deletes: texts that are still to be read are read first.
    virtual void scriptFilesWillChange() = 0;
    /// Whether the file of that title is listed as that of a script other than this one.
    [[nodiscard]] virtual bool hasAnotherScriptOfFile(std::string_view title,
                                                      const Record& script) const = 0;
    /// Whether a press on a remove button counts: the next card moves under the pointer, and a
    /// double click must not remove that one too.
    [[nodiscard]] virtual bool admitsRemoval() = 0;
};

/// A text field for editing within a script's card.
class ScriptEditField final : public TextField {
public:
    /// Which of the system's fonts: a text of several lines stands in the one of fixed width.
    enum class Kind : std::uint8_t { Title, Text };

    /// Larger texts would stop the window; they are not laid out for editing and stay as they are.
    static constexpr std::size_t largestEditableText = std::size_t{1} << 20; // bytes

    ScriptEditField(Kind kind, Rect frame, double fontSize) : kind_(kind), fontSize_(fontSize) {
        setFrame(frame);
    }

    /// Like `userDidEdit`, for an editor whose lines end in a line feed alone: they get the end
    /// that the first line had before, for its interpreter goes by that one.
    void userDidEditLines(std::string_view text);

    [[nodiscard]] bool isTooLarge() const { return stringValue().size() > largestEditableText; }

    [[nodiscard]] Kind kind() const { return kind_; }
    /// In points of the card.
    [[nodiscard]] double fontSize() const { return fontSize_; }

private:
    Kind kind_;
    double fontSize_;
    std::optional<std::string_view> lineEnd_; ///< unknown before the first edit
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

/// What the user has typed into a script and the file does not hold yet.
struct ScriptDraft {
    Dictionary saved; ///< the record as the file has it
    std::string title;
    std::string text;
    std::optional<Error> failure; ///< why it could not be saved, if that was tried
};

/// A quiet word about a script and what stands behind it, in the user's language; empty when all is
/// well.
struct ScriptNote {
    std::string caption;
    std::string reason;
    bool operator==(const ScriptNote&) const = default;
};

/// How the last run ended, as the card says it; an empty line says nothing.
struct ScriptOutcome {
    std::string line;
    bool failed = false;
    bool operator==(const ScriptOutcome&) const = default;
};

/// What a card says of its script's last run and save; an empty line says nothing.
struct ScriptState {
    Symbol symbol;
    std::string line;
    std::string reason; ///< what stands behind it, if there is more to say
};

/// A button of a card as it is shown; the accessible name tells it from those of other cards.
struct ButtonCaption {
    std::string title;
    std::string toolTip;
    std::string accessibleName;
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
    /// Begins editing, or ends it and saves: the file of the former title gives way to that of the
    /// new one. When this fails, the former file stays, nothing is shown but the note, and the next
    /// save tries again.
    void edit(Control* sender = nullptr);
    /// Runs the script once; saves first while editing. The pane is blocked until it has ended.
    void execute(Control* sender = nullptr);
    /// Deletes the file and has the owner drop the record.
    void remove(Control* sender = nullptr);

    /// Ends editing and drops what was typed since it began.
    void cancelEditing();

    // Presses of the card's buttons.
    void userDidPressEdit() { edit(); }
    void userDidPressCancel() { cancelEditing(); }
    void userDidPressRun() { execute(); }
    /// Not the second press of a double click.
    void userDidPressRemove();

    /// Takes the edit fields over into the record. An emptied field keeps the record's old value.
    void validateData();
    /// Deletes the script's file; a record without a title deletes nothing.
    void removeFile();

    // Drafts.
    /// Nothing while the file holds all that was typed.
    [[nodiscard]] std::optional<ScriptDraft> draft() const;
    /// Goes on editing where a draft was left; the record is the one of its file.
    void resume(const ScriptDraft& draft);
    /// For a resumed draft without a file: what was typed is no longer dropped by cancelling.
    void noteUnsaved(const ScriptDraft& draft);

    // State.
    /// Says for as long as it is so that the script is not saved.
    [[nodiscard]] const Property<ScriptNote>& noteProperty() const { return note_; }
    [[nodiscard]] bool editing() const { return editing_; }
    /// Cancelling would drop something: a stray key must not do it.
    [[nodiscard]] bool holdsTypedText() const;
    /// The flag alone; `edit` brings the fields.
    void setEditing(bool editing) { editing_ = editing; }

    /// The script runs at the moment; its card says so and cannot run it again.
    [[nodiscard]] const Property<bool>& runningProperty() const { return running_; }
    void setRunning(bool running) { running_.set(running); }
    /// Until the next run or edit.
    [[nodiscard]] const Property<ScriptOutcome>& outcomeProperty() const { return outcome_; }
    void setOutcome(ScriptOutcome outcome) { outcome_.set(std::move(outcome)); }
    /// Of outcome and note together.
    [[nodiscard]] ScriptState shownState() const;

    // Texts of the card, fit for display.
    [[nodiscard]] std::string shownTitle() const;
    /// The first lines of the text; none for an empty one, which `emptyText` stands for.
    [[nodiscard]] std::vector<std::string> shownLines() const;
    [[nodiscard]] std::string emptyText() const;
    [[nodiscard]] std::string cardName() const;
    [[nodiscard]] ButtonCaption runCaption() const;
    [[nodiscard]] ButtonCaption editCaption() const;
    [[nodiscard]] ButtonCaption cancelCaption() const;
    [[nodiscard]] ButtonCaption removeCaption() const;
    /// What editing means, beside the buttons.
    [[nodiscard]] std::string editingHint() const;
    [[nodiscard]] std::string titleFieldName() const;
    [[nodiscard]] std::string textFieldName() const;
    /// Stands in place of a text that is too large to be edited.
    [[nodiscard]] std::string tooLargeText() const;

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
    void filesWillChange() const;
    void beginEditing();
    void cancelNow();
    void removeFields();
    void save();
    /// The file's title; null for a script without a file, or one that is not saved while its file
    /// is another's.
    [[nodiscard]] const std::string* titleOfFile() const;
    Replacement writeFile(const std::optional<std::string>& formerTitle);
    /// `before` is the record as the file had it.
    void noteFailure(const std::optional<Error>& failure, Dictionary before);
    void showNote();
    void storeEdited(std::string_view key, const ScriptEditField* field, std::string_view fallback);
    [[nodiscard]] ScriptOutcome outcomeOf(const ScriptError* error) const;
    [[nodiscard]] std::string localized(std::string_view key) const;
    [[nodiscard]] std::string aboutThis(std::string_view key) const;
    /// Of the record of this row, which an item without `data` shows as well.
    [[nodiscard]] std::string_view stringOfRow(std::string_view key) const;

    Platform& platform_;
    ScriptProgress& progress_;
    ScriptItemView view_;
    ScriptEditField* eTitle_ = nullptr;
    ScriptEditField* eText_ = nullptr;
    bool editing_ = false;
    Property<bool> running_{false};
    Property<ScriptOutcome> outcome_;
    Record data_;
    /// While the script is not saved: the record as its file had it, and why.
    std::optional<Dictionary> saved_;
    std::optional<Error> saveFailure_;
    Property<ScriptNote> note_;
    CollectionViewDelegate* owner_ = nullptr;
    TextField* text_ = nullptr;
};

} // namespace zarvil
