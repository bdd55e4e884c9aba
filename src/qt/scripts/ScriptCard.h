#pragma once

#include "qt/scripts/ScriptFieldEditor.h"
#include "scripts/ZVScriptCollectionItem.h"

#include <QWidget>

#include <memory>
#include <vector>

class QLabel;
class QPushButton;

namespace zarvil::qt {

/// Shows one script item: its title and text with the buttons that edit, run and remove it, and
/// its edit fields while it has any. A card outlives its item and is bound to others in turn.
class ScriptCard final : public QWidget {
    Q_OBJECT

public:
    /// Around the item's view.
    static constexpr int padding = 6;
    [[nodiscard]] static QSize minimumCardSize();

    explicit ScriptCard(QWidget* parent);

    void bind(std::shared_ptr<ZVScriptCollectionItem> item);
    void unbind();
    [[nodiscard]] const std::shared_ptr<ZVScriptCollectionItem>& item() const { return item_; }
    [[nodiscard]] bool hasFocusWithin() const;
    /// The widgets that take the keyboard, in the order in which Tab visits them.
    [[nodiscard]] std::vector<QWidget*> focusChain() const;

signals:
    /// Edit fields came or went.
    void focusChainChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QPushButton* addButton(void (ZVScriptCollectionItem::*press)());
    void showRecord();
    void showTitle();
    void showText();
    void showFields(const ScriptItemView::Subviews& fields);
    void showEditing(bool editing);
    void showNote(const ScriptNote& note);
    void placeButtons();
    void updateFonts();

    QLabel* title_;
    QLabel* text_;
    QLabel* note_;
    QPushButton* edit_;
    QPushButton* run_;
    QPushButton* remove_;
    std::vector<std::unique_ptr<ScriptFieldEditor>> editors_; ///< back to front
    std::shared_ptr<ZVScriptCollectionItem> item_;
    Subscription recordEdits_;
    Subscription fieldChanges_;
    Subscription noteChanges_;
};

} // namespace zarvil::qt
