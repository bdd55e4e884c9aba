#include "qt/pane/PaneView.h"

#include "qt/widgets/MessagePanelWidget.h"
#include "qt/widgets/Theme.h"
#include "ui_AboutTab.h"
#include "ui_AlertsTab.h"
#include "ui_DevicesTab.h"
#include "ui_GeneralTab.h"
#include "ui_PaneView.h"
#include "ui_ScriptsTab.h"
#include "ui_UninstallPanel.h"

#include <QBitmap>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTabBar>

#include <type_traits>
#include <utility>

namespace zarvil::qt {

namespace {

// In heights of a line.
constexpr int firstWidth = 38;
constexpr int firstHeight = 36;
/// In a lower window what is above and below the tabs makes room.
constexpr int lowHeight = 24;

/// Nothing moves when the widget comes and goes.
void keepRoomWhileHidden(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

} // namespace

/// Asks before the product is removed: as high as its text, over its window every time, and with
/// the keyboard at the harmless button, wherever it was left.
class PaneView::ConfirmationPanel final : public QDialog {
public:
    explicit ConfirmationPanel(PaneView* view) : QDialog(view) {
        setObjectName("uninstallModal");
        setWindowFlag(Qt::FramelessWindowHint);
        setWindowModality(Qt::ApplicationModal);
        layout_.setupUi(this);
    }

    void setVisible(bool visible) override {
        if (visible && !isVisible()) {
            fit();
            layout_.CancelUninstall->setFocus();
        }
        QDialog::setVisible(visible);
    }

protected:
    void changeEvent(QEvent* event) override {
        QDialog::changeEvent(event);
        if (event->type() == QEvent::FontChange && isVisible())
            fit();
    }

private:
    void fit() {
        constexpr int characters = 48;
        fitHeading();
        const QMargins margins = layout_.Layout2->contentsMargins();
        const int width =
            theme::charactersWide(*this, characters) + margins.left() + margins.right();
        const QSize size =
            QSize(width, layout()->totalHeightForWidth(width)).expandedTo(layout()->minimumSize());
        setFixedSize(size);
        // Without a compositor what lies outside of the rounded panel would be black.
        QBitmap shape(size);
        shape.clear();
        QPainter painter(&shape);
        painter.setBrush(Qt::color1);
        constexpr double radius = MessagePanelWidget::cornerRadius;
        painter.drawRoundedRect(QRect(QPoint(), size).adjusted(0, 0, -1, -1), radius, radius);
        painter.end();
        setMask(shape);
        QRect place(QPoint(), size);
        place.moveCenter(parentWidget()->window()->geometry().center());
        move(place.topLeft());
    }

    /// The band that the heading stands in is of a fixed height.
    void fitHeading() {
        QFont font = theme::scaled(QDialog::font(), 1.1, QFont::Bold);
        const int room = layout_.UninstallHeading->maximumHeight() - 4;
        if (const int height = QFontMetrics(font).height(); height > room)
            font = theme::scaled(font, static_cast<double>(room) / height, QFont::Bold);
        layout_.UninstallHeading->setFont(font);
    }

    Ui::UninstallPanel layout_;
};

/// Holds the tab bar's left edge at that of the column.
class PaneView::Gap final : public QWidget {
public:
    using QWidget::QWidget;
    void setWidth(int width) {
        if (width == width_)
            return;
        width_ = width;
        updateGeometry();
        // The tab widget asks for the corner's size when it is resized, and at a change of style.
        QEvent again(QEvent::LayoutRequest);
        QCoreApplication::sendEvent(parentWidget(), &again);
    }
    [[nodiscard]] QSize sizeHint() const override { return {width_, 1}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 1}; }

private:
    int width_ = theme::sideMargin;
};

PaneView::PaneView(QWidget* parent) : QWidget(parent) {
    Ui::PaneView frame;
    frame.setupUi(this);
    putOff<Ui::DevicesTab>(*frame.DevicesTab);
    putOff<Ui::GeneralTab>(*frame.GeneralTab);
    putOff<Ui::AlertsTab>(*frame.AlertsTab);
    putOff<Ui::ScriptsTab>(*frame.ScriptsTab);
    putOff<Ui::AboutTab>(*frame.AboutTab);

    constexpr int above = 16;
    constexpr int between = 12;
    constexpr int aroundLock = 8;
    top_ = frame.Top;
    bottom_ = frame.Bottom;
    tabs_ = frame.tabView;
    lock_ = frame.authView;
    helpButton_ = frame.HelpButton;
    statusLine_ = frame.statusLine;
    agentHint_ = frame.agentHint;
    top_->setVerticalMargins(above, between);
    bottom_->setVerticalMargins(aroundLock, aroundLock);
    gap_ = new Gap(tabs_);
    tabs_->setCornerWidget(gap_, Qt::TopLeftCorner);
    launchButton_ = frame.launchButton;
    tabs_->tabBar()->installEventFilter(this);
    connect(frame.agentRow, &BannerRow::prominentChanged, this, [this](bool prominent) {
        if (prominent && untouched_ && tabs_->tabBar() == window()->focusWidget())
            launchButton_->setFocus();
    });
    QAccessible::installActivationObserver(this);
    if (QAccessible::isActive())
        makeAllParts();
}

PaneView::~PaneView() { QAccessible::removeActivationObserver(this); }

template <typename Layout>
void PaneView::putOff(Page& page) {
    page.setFilling([this](Column& column) {
        Layout layout;
        layout.setupUi(&column);
        if constexpr (std::is_same_v<Layout, Ui::DevicesTab>)
            adaptToFont();
        if constexpr (std::is_same_v<Layout, Ui::AlertsTab>)
            keepRoomWhileHidden(*layout.pushValidationStatus);
        if constexpr (std::is_same_v<Layout, Ui::AboutTab>)
            layout.ProductIcon->setSymbol(Symbol::Shield);
        followNewestPage();
        finishPart(column);
    });
}

/// What stands below the tabs comes after the pages, which have come into being after it.
void PaneView::followNewestPage() {
    QWidget* last = window()->previousInFocusChain();
    while (last->focusPolicy() == Qt::NoFocus)
        last = last->previousInFocusChain();
    setTabOrder(last, lock_);
    setTabOrder(lock_, helpButton_);
}

void PaneView::finishPart(QWidget& part) { Q_EMIT partMade(&part); }

void PaneView::makeUninstallPanel() {
    if (uninstallPanel_)
        return;
    uninstallPanel_ = new ConfirmationPanel(this);
    finishPart(*uninstallPanel_);
}

void PaneView::makeAllParts() {
    for (auto* page : findChildren<Page*>())
        page->fill();
    makeUninstallPanel();
}

void PaneView::accessibilityActiveChanged(bool active) {
    if (active)
        makeAllParts();
}

QSize PaneView::sizeHint() const {
    const int line = theme::lineHeight(*this);
    return QSize(firstWidth * line, firstHeight * line).expandedTo(minimumSizeHint());
}

void PaneView::adaptToHeight() {
    const bool low = height() < lowHeight * theme::lineHeight(*this);
    statusLine_->setElided(low);
    agentHint_->setElided(low);
    bottom_->setVisible(!low);
}

/// The lists scroll by themselves as long as a few cards stand in sight, then the page does.
void PaneView::adaptToFont() {
    constexpr int cards = 3;
    const int card = 2 * theme::lineHeight(*this) + 4 * theme::unit(*this);
    for (const char* name : {"connectedDevices", "selectedDevices"})
        if (auto* list = findChild<QWidget*>(name))
            list->setMinimumHeight(cards * card);
}

/// Most desktops' palettes have a disabled text that is faint on the pane's grounds.
void PaneView::adaptToPalette() {
    const QPalette desktops = QGuiApplication::palette();
    if (std::exchange(followed_, desktops.cacheKey()) != desktops.cacheKey())
        setPalette(theme::disabledTextFor(desktops));
}

bool PaneView::event(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::Polish)
        adaptToPalette();
    // Comes before the view and what is in it are first shown.
    if (event->type() == QEvent::Polish)
        static_cast<Page*>(tabs_->currentWidget())->fill();
    if (event->type() == QEvent::FontChange) {
        adaptToFont();
        adaptToHeight();
    }
    return QWidget::event(event);
}

bool PaneView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::Shortcut ||
        event->type() == QEvent::MouseButtonPress)
        untouched_ = false;
    return QWidget::eventFilter(watched, event);
}

/// Return in a field stores what is in it.
void PaneView::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && launchButton_->isDefault() && !qobject_cast<QLineEdit*>(focusWidget()))
        launchButton_->click();
    else
        QWidget::keyPressEvent(event);
}

/// Not before: a view that is put into a window leaves its focus behind.
void PaneView::showEvent(QShowEvent* event) {
    // No key stroke switches anything by accident.
    if (!window()->focusWidget())
        tabs_->tabBar()->setFocus();
    QWidget::showEvent(event);
}

void PaneView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    gap_->setWidth(top_->columnOffset(width()));
    adaptToHeight();
}

} // namespace zarvil::qt
