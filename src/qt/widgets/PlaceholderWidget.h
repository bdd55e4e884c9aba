#pragma once

#include "interface/Symbol.h"

#include <QPointer>
#include <QWidget>

namespace zarvil::qt {

class SymbolWidget;
class TextLabel;

/// A framed text in place of a list's rows. It lies over the list, as its sibling, and so keeps
/// its contrast while the list is dimmed. The list bears its text as the accessible description.
class PlaceholderWidget final : public QWidget {
    Q_OBJECT
    /// Object name of the sibling that it lies over.
    Q_PROPERTY(QString covers READ covers WRITE setCovers)
    /// What it lies over is not seen at all meanwhile, but keeps its room.
    Q_PROPERTY(bool hidesCovered READ hidesCovered WRITE setHidesCovered)

public:
    explicit PlaceholderWidget(QWidget* parent = nullptr);

    void setText(Symbol symbol, const QString& title, const QString& words);
    [[nodiscard]] QString covers() const { return covers_; }
    void setCovers(const QString& covers) { covers_ = covers; }
    [[nodiscard]] bool hidesCovered() const { return hidesCovered_; }
    void setHidesCovered(bool hides) { hidesCovered_ = hides; }

    void setVisible(bool visible) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QWidget* covered();
    void cover();
    void describe();
    /// The words need the room more than the symbol does.
    void showSymbolWhereItFits();

    SymbolWidget* symbol_;
    TextLabel* title_;
    TextLabel* words_;
    QString covers_;
    bool hidesCovered_ = false;
    QPointer<QWidget> covered_;
};

} // namespace zarvil::qt
