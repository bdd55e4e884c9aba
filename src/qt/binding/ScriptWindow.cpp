#include "qt/binding/ScriptWindow.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

namespace zarvil::qt {

namespace {

constexpr int textWidth = 360;

/// Neither Escape nor the window's frame closes it: it goes when the script has ended.
class LastingDialog final : public QDialog {
public:
    explicit LastingDialog(QWidget* parent)
        : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {}

    void reject() override {}
};

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

ScriptWindow::ScriptWindow(ScriptProgress& progress, QWidget& pane)
    : progress_(progress), pane_(pane) {
    running_ =
        progress.runningProperty().observe([this](bool running, Transition) { block(running); });
    shown_ =
        progress.windowShownProperty().observe([this](bool shown, Transition) { show(shown); });
}

void ScriptWindow::make() {
    window_ = new LastingDialog(&pane_);
    window_->setObjectName("ScriptWindow");
    window_->setWindowModality(Qt::ApplicationModal);
    text_ = new QLabel(window_);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setMinimumWidth(textWidth);
    auto* bar = new QProgressBar(window_);
    bar->setRange(0, 0); // without an end in sight
    bar->setTextVisible(false);
    stop_ = new QPushButton(QString::fromUtf8(progress_.stopTitle()), window_);
    stop_->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(bar, 1);
    row->addWidget(stop_);
    auto* column = new QVBoxLayout(window_);
    column->addWidget(text_);
    column->addLayout(row);
    column->setSizeConstraint(QLayout::SetFixedSize);
    connect(stop_, &QPushButton::clicked, this, [this] { progress_.stop(); });
    stopping_ = progress_.stoppingProperty().observe(
        [this](bool stopping, Transition) { stop_->setEnabled(!stopping); });
}

ScriptWindow::~ScriptWindow() { delete window_; }

void ScriptWindow::block(bool running) {
    if (running)
        QCoreApplication::instance()->installEventFilter(this);
    else
        QCoreApplication::instance()->removeEventFilter(this);
}

void ScriptWindow::show(bool shown) {
    if (!shown) {
        if (window_)
            window_->hide();
        return;
    }
    if (!window_)
        make();
    window_->setWindowTitle(pane_.window()->windowTitle());
    text_->setText(QString::fromUtf8(progress_.textProperty().get()));
    stop_->setVisible(progress_.canStop());
    window_->show();
    // Not the button: a key that was meant for the pane must not press it.
    window_->setFocus();
}

bool ScriptWindow::isOwn(const QObject& receiver) const {
    if (!window_)
        return false;
    if (const auto* widget = qobject_cast<const QWidget*>(&receiver))
        return widget->window() == window_;
    return &receiver == window_->windowHandle();
}

bool ScriptWindow::eventFilter(QObject* watched, QEvent* event) {
    if (!isInput(event->type()) || !(watched->isWidgetType() || watched->isWindowType()) ||
        isOwn(*watched))
        return false;
    // The program's own end closes windows too.
    if (event->type() == QEvent::Close && !event->spontaneous())
        return false;
    event->ignore();
    return true;
}

} // namespace zarvil::qt
