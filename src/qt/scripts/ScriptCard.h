#pragma once

#include "qt/scripts/ScriptFieldEditor.h"
#include "scripts/ZVScriptCollectionItem.h"

#include <QWidget>

#include <memory>
#include <vector>

class QLabel;
class QPushButton;

namespace zarvil::qt {

/// Shows one script item: its title and first lines with the buttons that run, edit and remove it,
/// and its edit fields while it has any. The buttons stay where they are when editing begins and
/// ends. A card outlives its item and is bound to others in turn.
class ScriptCard final : public QWidget {
    Q_OBJECT

public:
    explicit ScriptCard(QWidget* parent);

    void bind(std::shared_ptr<ZVScriptCollectionItem> item);
    void unbind();
    [[nodiscard]] const std::shared_ptr<ZVScriptCollectionItem>& item() const { return item_; }
    [[nodiscard]] bool hasFocusWithin() const;
    /// The widgets that take the keyboard, in the order in which Tab visits them.
    [[nodiscard]] std::vector<QWidget*> focusChain() const;
    /// Where the keyboard goes when it comes to this card unasked: to a button that does no harm.
    void takeFocus();

    /// What the present content asks for.
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    /// Of a card of two lines: what a list reckons with before it has seen a script.
    [[nodiscard]] static int typicalHeight(const QWidget& list);

Q_SIGNALS:
    /// Edit fields came or went.
    void focusChainChanged();
    /// `heightForWidth` has another answer.
    void heightChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QPushButton* addButton(void (ZVScriptCollectionItem::*press)());
    void observe();
    void showItem();
    void showState();
    void showFields(const ScriptItemView::Subviews& fields);
    void updateLook();
    void layOut();
    void layOutHeader();
    void placeFields();
    [[nodiscard]] bool isEditing() const { return !editors_.empty(); }
    struct Placed {
        QPushButton* button;
        QRect place; ///< for a layout from left to right
    };
    [[nodiscard]] std::vector<Placed> placedButtons(int width) const;
    [[nodiscard]] QRect mirrored(const QRect& place) const;
    [[nodiscard]] int headerHeight(int width) const;
    /// The title would get too little room beside the buttons.
    [[nodiscard]] bool buttonsStandBelow(int width) const;

    QLabel* title_;
    QLabel* hint_; ///< in place of the title while editing
    QLabel* text_;
    QLabel* textCaption_; ///< between the fields
    QLabel* state_;       ///< how the last run ended, or that a save failed
    QPushButton* cancel_; ///< seen while editing
    QPushButton* run_;
    QPushButton* edit_;
    QPushButton* remove_;
    std::vector<std::unique_ptr<ScriptFieldEditor>> editors_; ///< back to front
    std::shared_ptr<ZVScriptCollectionItem> item_;
    std::vector<Subscription> changes_;
};

} // namespace zarvil::qt
