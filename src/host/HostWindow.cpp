#include "host/HostWindow.h"

#include "host/Tabs.h"
#include "qt/text/ToolTip.h"

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QTabWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace zarvil::host {

namespace {

// Sections and keys of the settings.
constexpr const char* windowSection = "window";
constexpr const char* geometryKey = "geometry";
constexpr const char* tabsSection = "tabs";
constexpr int listWidth = 180;

/// Has what came in over the bus handled, but no event of the window's.
void takeInAnswers() { QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); }

/// Qt takes a plain widget for a part of a window, also where it is one.
QAccessibleInterface* makeAccessibleWindow(const QString& /*className*/, QObject* object) {
    auto* window = qobject_cast<HostWindow*>(object);
    return window ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

} // namespace

HostWindow::HostWindow(const std::vector<BundleOutcome>& bundles, const PaneOptions& options,
                       posix::SettingsFile& settings)
    : settings_(settings) {
    setObjectName("hostWindow");
    QAccessible::installFactory(makeAccessibleWindow);
    for (const auto& bundle : bundles)
        makeEntry(bundle, options);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    if (entries_.size() > 1) {
        makeList();
        columns->addWidget(list_);
    }
    content_ = new QVBoxLayout;
    columns->addLayout(content_, 1);
    for (const auto key : {QKeySequence::Quit, QKeySequence::Close})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
}

HostWindow::~HostWindow() = default;

void HostWindow::makeEntry(const BundleOutcome& bundle, const PaneOptions& options) {
    if (const auto* good = std::get_if<Bundle>(&bundle))
        entries_.push_back({std::make_unique<PaneDriver>(*good, options), {}});
    else
        entries_.push_back({nullptr, std::get<BundleFailure>(bundle).message});
}

void HostWindow::makeList() {
    list_ = new QListWidget(this);
    list_->setObjectName("panes");
    list_->setAccessibleName(tr("Preference panes"));
    list_->setFixedWidth(listWidth);
    for (const auto& entry : entries_) {
        auto* item = new QListWidgetItem(
            entry.driver ? entry.driver->bundle().name : tr("Broken pane"), list_);
        if (entry.driver && !entry.driver->bundle().icon.isEmpty())
            item->setIcon(QIcon(entry.driver->bundle().icon));
        item->setToolTip(qt::plainToolTip(entry.fault));
    }
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && static_cast<std::size_t>(row) != current_)
            wish(static_cast<std::size_t>(row));
    });
}

std::optional<BundleFailure> HostWindow::prepare() {
    std::optional<BundleFailure> first;
    for (std::size_t row = 0; row < entries_.size(); ++row) {
        auto& entry = entries_[row];
        if (!entry.driver)
            continue;
        if (auto failed = entry.driver->load()) {
            entry.fault = failed->message;
            if (!first)
                first = std::move(failed);
            continue;
        }
        current_ = row;
        content_->addWidget(entry.driver->view());
        return std::nullopt;
    }
    return first;
}

std::optional<BundleFailure> HostWindow::open(const QString& tab) {
    if (auto failure = prepare())
        return failure;
    view_ = entries_[current_].driver->view();
    if (!turnToTab(*this, tab))
        restoreTab();
    // The pane waits for some before it asks more. Another start may ask for a tab as well, or
    // turn out to have been the first.
    takeInAnswers();
    if (finished_)
        return std::nullopt;
    showPane(current_);
    restorePlace();
    // What the pane has asked for is answered while it is laid out. Once the window is shown, each
    // answer would be laid out and painted by itself.
    ensurePolished();
    layout()->activate();
    takeInAnswers();
    if (!finished_)
        show();
    return std::nullopt;
}

/// The first size is the one that the pane would like, as far as the screen has room for it.
void HostWindow::restorePlace() {
    const std::string stored = settings_.value(windowSection, geometryKey);
    if (restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(stored))))
        return;
    constexpr QSize frame(16, 48); // what a window manager may put around a window
    resize(sizeHint().boundedTo(screen()->availableSize() - frame));
}

QTabWidget* HostWindow::tabs() const { return view_ ? view_->findChild<QTabWidget*>() : nullptr; }

std::string HostWindow::tabKey() const {
    return QUrl::toPercentEncoding(entries_[current_].driver->bundle().identifier).toStdString();
}

void HostWindow::restoreTab() {
    QTabWidget* pages = tabs();
    if (!pages)
        return;
    bool isNumber = false;
    const auto stored = settings_.value(tabsSection, tabKey());
    const int tab = QByteArray::fromStdString(stored).toInt(&isNumber);
    if (isNumber)
        pages->setCurrentIndex(tab);
}

void HostWindow::rememberTab() {
    if (const QTabWidget* pages = tabs())
        settings_.setValue(tabsSection, tabKey(), std::to_string(pages->currentIndex()));
}

void HostWindow::closeRegardless() {
    if (finished_)
        return;
    if (auto& driver = entries_[current_].driver)
        driver->leaveRegardless();
    if (isVisible())
        rememberTab();
    finish();
}

void HostWindow::closeEvent(QCloseEvent* event) {
    if (!finished_)
        wish(std::nullopt);
    event->setAccepted(finished_);
}

/// The last wish counts while the pane makes up its mind.
void HostWindow::wish(Target target) {
    wished_ = target;
    if (leaving_)
        return;
    leaving_ = true;
    if (auto& driver = entries_[current_].driver)
        driver->leave([this](bool left) { proceed(left); });
    else
        proceed(true);
}

void HostWindow::proceed(bool left) {
    leaving_ = false;
    if (left)
        rememberTab();
    if (!left)
        markCurrent();
    else if (wished_)
        turnTo(*wished_);
    else
        finish();
}

void HostWindow::turnTo(std::size_t row) {
    showPane(row);
    restoreTab();
}

void HostWindow::showPane(std::size_t row) {
    current_ = row;
    markCurrent();
    delete std::exchange(faultLabel_, nullptr);
    view_ = nullptr;
    auto& entry = entries_[row];
    if (entry.driver)
        if (const auto failed = entry.driver->load())
            entry.fault = failed->message;
    if (!entry.fault.isEmpty()) {
        showFault(entry.fault);
        return;
    }
    view_ = entry.driver->view();
    content_->addWidget(view_);
    entry.driver->select();
    if (isVisible()) // otherwise it comes up with the window, and is laid out once
        view_->show();
    setWindowTitle(entry.driver->title());
    if (const QIcon icon = entry.driver->icon(); !icon.isNull())
        setWindowIcon(icon);
}

void HostWindow::showFault(const QString& fault) {
    setWindowTitle(tr("Preferences"));
    faultLabel_ = new QLabel(fault, this);
    faultLabel_->setObjectName("fault");
    faultLabel_->setTextFormat(Qt::PlainText);
    faultLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    faultLabel_->setWordWrap(true);
    faultLabel_->setMargin(24);
    content_->addWidget(faultLabel_);
    faultLabel_->show();
}

void HostWindow::markCurrent() {
    if (list_)
        list_->setCurrentRow(static_cast<int>(current_));
}

void HostWindow::finish() {
    const bool wasThere = isVisible();
    const std::string place = saveGeometry().toBase64().toStdString();
    finished_ = true;
    hide(); // before a slow disk is waited for
    if (wasThere)
        settings_.setValue(windowSection, geometryKey, place);
    Q_EMIT closed();
}

} // namespace zarvil::host
