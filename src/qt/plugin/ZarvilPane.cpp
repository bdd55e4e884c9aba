#include "qt/plugin/ZarvilPane.h"

#include "bus/DBusMessageCenter.h"
#include "pane/Zarvil_Preferences.h"
#include "posix/PosixClock.h"
#include "posix/PosixFileManager.h"
#include "posix/PosixProcessControl.h"
#include "posix/PosixScriptRunner.h"
#include "protocol/BusNames.h"
#include "qt/adapters/QtPlatform.h"
#include "qt/adapters/QtRunLoop.h"
#include "qt/binding/AlertBox.h"
#include "qt/binding/OutletBinder.h"
#include "qt/binding/ScriptWindow.h"
#include "qt/canvas/Convert.h"
#include "qt/pane/HelpWindow.h"
#include "qt/pane/PaneView.h"
#include "qt/translation/Translation.h"
#include "qt/widgets/SymbolWidget.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QPainter>

namespace zarvil {

namespace {

Q_LOGGING_CATEGORY(paneLog, "zarvil.pane", QtInfoMsg)

/// Ends processes once the messages that were posted before have left: they leave through a
/// thread that would end with this process.
class FlushingProcessControl final : public ProcessControl {
public:
    explicit FlushingProcessControl(DBusMessageCenter& messages) : messages_(messages) {}

    bool kill(std::int64_t processIdentifier) override {
        messages_.flush();
        return processes_.kill(processIdentifier);
    }
    void exit(int status) override {
        messages_.flush();
        processes_.exit(status);
    }

private:
    DBusMessageCenter& messages_;
    posix::PosixProcessControl processes_;
};

QtPlatform::Parts partsOfThePlatform(MessageBus& session, const StringTable& strings) {
    auto messages = std::make_unique<DBusMessageCenter>(session, bus::agentName);
    auto processes = std::make_unique<FlushingProcessControl>(*messages);
    return {std::move(messages), std::make_unique<posix::PosixClock>(),
            std::make_unique<posix::PosixFileManager>(strings),
            std::make_unique<posix::PosixScriptRunner>(
                strings, [mainThread = std::make_shared<QtMainThread>()](
                             std::function<void()> call) { mainThread->call(std::move(call)); }),
            std::move(processes)};
}

} // namespace

/// In the order of construction: what is below uses what is above.
struct ZarvilPane::Loaded {
    explicit Loaded(const PaneOptions& options)
        : translation(options.bundlePath + "/Contents/Resources", qt::Translation::Toolkit::Left),
          platform(partsOfThePlatform(*options.session, strings), *options.session,
                   options.root.toStdString()),
          controller(platform.platform()),
          view(std::make_unique<qt::PaneView>()),
          alerts(platform.alerts(), *view),
          scriptWindow(controller.scriptProgress, *view) {
        qt::HelpWindow::offer(*view, strings);
        qt::bindGuidance(controller, *view, bindings);
        bindPart(*view);
        QObject::connect(view.get(), &qt::PaneView::partMade, view.get(),
                         [this](QWidget* part) { bindPart(*part); });
        bindings.push_back(
            controller.uninstallModal.onScreenProperty().observe([this](bool onScreen, Transition) {
                if (onScreen)
                    view->makeUninstallPanel();
            }));
    }

    void bindPart(QWidget& part) {
        for (const std::string& fault : qt::bindOutlets(controller, part, bindings))
            qCWarning(paneLog).noquote() << "Layout:" << QString::fromUtf8(fault);
        qt::HelpWindow::explainControls(part, strings);
    }

    qt::Translation translation;
    QtStringTable strings;
    QtPlatform platform;
    Zarvil_Preferences controller;
    std::unique_ptr<qt::PaneView> view;
    qt::AlertBox alerts;
    qt::ScriptWindow scriptWindow;
    qt::Subscriptions bindings;
};

ZarvilPane::ZarvilPane() = default;

ZarvilPane::~ZarvilPane() = default;

void ZarvilPane::setOptions(const PaneOptions& options) { options_ = options; }

void ZarvilPane::setUnselectAnswer(UnselectAnswer /*answer*/) {}

QString ZarvilPane::title() const { return QStringLiteral("Zarvil"); }

QIcon ZarvilPane::icon() const {
    QIcon icon;
    for (const int extent : {16, 24, 32, 48, 64}) {
        QPixmap picture(extent, extent);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        const QPalette palette = QGuiApplication::palette();
        qt::paintSymbol(painter, Symbol::Shield, picture.rect(), palette,
                        palette.color(QPalette::WindowText));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

QWidget* ZarvilPane::mainView() {
    if (!loaded_)
        loaded_ = std::make_unique<Loaded>(options_);
    return loaded_->view.get();
}

void ZarvilPane::mainViewDidLoad() { loaded_->controller.mainViewDidLoad(); }

void ZarvilPane::willSelect() { loaded_->controller.willSelect(); }

int ZarvilPane::shouldUnselect() { return static_cast<int>(loaded_->controller.shouldUnselect()); }

void ZarvilPane::willUnselect() { loaded_->controller.willUnselect(); }

void ZarvilPane::didUnselect() { loaded_->controller.didUnselect(); }

} // namespace zarvil
