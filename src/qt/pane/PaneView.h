#pragma once

#include <QWidget>

class QDialog;
class QPushButton;
class QTabWidget;

namespace zarvil::qt {

class BannerRow;
class Column;
class TextLabel;

/// The pane's layout: the protection and the agent's presence above the tabs, the lock below.
/// The confirmation panel is a window of its own that belongs to the view.
class PaneView : public QWidget {
    Q_OBJECT

public:
    explicit PaneView(QWidget* parent = nullptr);

    [[nodiscard]] QDialog* uninstallPanel() const { return uninstallPanel_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Gap;

    void adaptToHeight();
    void adaptToFont();
    void adaptToPalette();

    Column* top_;
    Column* bottom_;
    QTabWidget* tabs_;
    QPushButton* launchButton_;
    bool untouched_ = true; ///< neither key nor click has reached the tab bar since the start
    TextLabel* statusLine_;
    TextLabel* agentHint_;
    Gap* gap_;
    QDialog* uninstallPanel_;
    QPalette completed_; ///< what the pane adds to the desktop's palette
};

} // namespace zarvil::qt
