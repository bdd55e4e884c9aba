#pragma once

#include <QAccessible>
#include <QWidget>

class QPushButton;
class QTabWidget;

namespace zarvil::qt {

class BannerRow;
class Column;
class TextLabel;

class Page;

/// The pane's layout: the protection and the agent's presence above the tabs, the lock below.
/// The confirmation panel is a window of its own that belongs to the view.
///
/// A page of the tabs gets its controls when it is first shown, and the panel is made then, which
/// for most of them is never: the window comes up sooner. An assistive program looks at all of
/// them, so while there is one nothing is put off.
class PaneView : public QWidget, private QAccessible::ActivationObserver {
    Q_OBJECT

public:
    explicit PaneView(QWidget* parent = nullptr);
    ~PaneView() override;
    PaneView(const PaneView&) = delete;
    PaneView& operator=(const PaneView&) = delete;

    /// Makes the confirmation panel, hidden, unless it is there.
    void makeUninstallPanel();
    [[nodiscard]] QSize sizeHint() const override;
    /// Makes whatever has not been shown yet.
    void makeAllParts();

Q_SIGNALS:
    /// A part of the layout has got its controls, and is about to be shown.
    void partMade(QWidget* part);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Gap;
    class ConfirmationPanel;

    void accessibilityActiveChanged(bool active) override;
    template <typename Layout>
    void putOff(Page& page);
    void followNewestPage();
    void finishPart(QWidget& part);
    void adaptToHeight();
    void adaptToFont();
    void adaptToPalette();

    Column* top_;
    Column* bottom_;
    QTabWidget* tabs_;
    QWidget* lock_;
    QWidget* helpButton_;
    QPushButton* launchButton_;
    bool untouched_ = true; ///< neither key nor click has reached the tab bar since the start
    TextLabel* statusLine_;
    TextLabel* agentHint_;
    Gap* gap_;
    ConfirmationPanel* uninstallPanel_ = nullptr;
    qint64 followed_ = 0; ///< cache key of the desktop's palette that the pane's own completes
};

} // namespace zarvil::qt
