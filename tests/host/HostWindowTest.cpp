#include "host/HostWindow.h"
#include "Bundles.h"
#include "host/Activation.h"
#include "host/Tabs.h"

#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QSignalSpy>
#include <QTabWidget>

#include <csignal>
#include <sys/resource.h>

namespace zarvil::host {
namespace {

class HostWindowTest : public Bundles {
protected:
    /// The call comes as one over the bus does, before the window is there.
    void openWindow(const QString& root = {}, const QString& tab = {},
                    const std::function<void()>& call = {}) {
        PaneOptions options;
        options.root = root;
        window = std::make_unique<HostWindow>(findBundles({path("panes")}), options, settings);
        closed = std::make_unique<QSignalSpy>(window.get(), &HostWindow::closed);
        if (call)
            QMetaObject::invokeMethod(window.get(), call, Qt::QueuedConnection);
        failure = window->open(tab);
    }
    QWidget* view(const QString& name) const { return window->findChild<QWidget*>(name); }
    void choose(int row) const { window->findChild<QListWidget*>()->setCurrentRow(row); }
    int chosen() const { return window->findChild<QListWidget*>()->currentRow(); }
    void setReply(const QString& name, int reply) const { view(name)->setProperty("reply", reply); }
    void decide(QWidget* pane, bool leave) const {
        ASSERT_TRUE(QMetaObject::invokeMethod(pane, "decide", Q_ARG(bool, leave)));
    }

    posix::SettingsFile settings{path("host.ini").toStdString(), [] {}};
    std::unique_ptr<HostWindow> window;
    std::unique_ptr<QSignalSpy> closed;
    std::optional<BundleFailure> failure;
};

TEST_F(HostWindowTest, onePaneLivesFromItsShowingToTheClosing) {
    makeBundle("A");
    openWindow("/trial");
    EXPECT_EQ(window->findChild<QListWidget*>(), nullptr);
    EXPECT_EQ(window->windowTitle(), "Title of A");
    EXPECT_TRUE(view("A")->isVisible());
    EXPECT_EQ(calls(),
              QStringList({"A: setOptions /trial", "A: mainViewDidLoad", "A: willSelect"}));
    window->showMinimized();
    bringToUser(*window);
    EXPECT_FALSE(window->isMinimized());
    EXPECT_EQ(calls(), QStringList()) << "a minimised window's pane stays selected";
    EXPECT_TRUE(window->close());
    EXPECT_EQ(closed->count(), 1);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(calls(), QStringList({"A: shouldUnselect", "A: willUnselect", "A: didUnselect"}));
    window.reset();
    EXPECT_EQ(calls(), QStringList({"A: gone"}));
}

TEST_F(HostWindowTest, choosingAnotherPaneLeavesTheFirst) {
    makeBundle("A");
    makeBundle("B");
    openWindow();
    EXPECT_EQ(calls(), QStringList({"A: setOptions", "A: mainViewDidLoad", "A: willSelect"}))
        << "a pane that is not shown is not loaded";
    choose(1);
    EXPECT_EQ(calls(), QStringList({"A: shouldUnselect", "A: willUnselect", "A: didUnselect",
                                    "B: setOptions", "B: mainViewDidLoad", "B: willSelect"}));
    EXPECT_FALSE(view("A")->isVisible());
    EXPECT_TRUE(view("B")->isVisible());
    choose(0);
    EXPECT_EQ(calls(), QStringList({"B: shouldUnselect", "B: willUnselect", "B: didUnselect",
                                    "A: willSelect"}));
    EXPECT_EQ(window->windowTitle(), "Title of A");
}

TEST_F(HostWindowTest, aPaneThatStaysKeepsTheWindowAndTheChoice) {
    makeBundle("A");
    makeBundle("B");
    openWindow();
    setReply("A", 0);
    calls();
    choose(1);
    EXPECT_EQ(chosen(), 0);
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(view("A")->isVisible());
    EXPECT_EQ(closed->count(), 0);
    EXPECT_EQ(calls(), QStringList({"A: shouldUnselect", "A: shouldUnselect"}));
    window->closeRegardless();
    EXPECT_EQ(closed->count(), 1);
    EXPECT_EQ(calls(), QStringList({"A: shouldUnselect", "A: willUnselect", "A: didUnselect"}));
}

TEST_F(HostWindowTest, aPaneMayDecideLaterAndTheLastWishCounts) {
    makeBundle("A");
    makeBundle("B");
    openWindow();
    setReply("A", 2);
    QWidget* pane = view("A");
    calls();
    choose(1);
    EXPECT_TRUE(pane->isVisible());
    decide(pane, false);
    EXPECT_EQ(chosen(), 0);
    decide(pane, true); // nobody waits for it
    EXPECT_EQ(calls(), QStringList({"A: shouldUnselect"}));

    choose(1);
    EXPECT_FALSE(window->close());
    EXPECT_EQ(calls(), QStringList({"A: shouldUnselect"})) << "asked once";
    decide(pane, true);
    EXPECT_EQ(closed->count(), 1);
    EXPECT_EQ(calls(), QStringList({"A: willUnselect", "A: didUnselect"}));
}

TEST_F(HostWindowTest, aBrokenPaneAmongOthersShowsItsFault) {
    write("panes/A.prefPane/Contents/Info.json", "{");
    makeBundle("B");
    makeBundle("C");
    write("panes/C.prefPane/Contents/libsample.so", "no library");
    openWindow();
    EXPECT_FALSE(failure);
    EXPECT_EQ(chosen(), 1);
    for (const int row : {0, 2}) {
        choose(row);
        const auto* fault = window->findChild<QLabel*>("fault");
        ASSERT_NE(fault, nullptr);
        EXPECT_TRUE(fault->isVisible());
        EXPECT_FALSE(fault->text().isEmpty());
        EXPECT_FALSE(view("B")->isVisible());
    }
    choose(1);
    EXPECT_EQ(window->findChild<QLabel*>("fault"), nullptr);
    EXPECT_TRUE(view("B")->isVisible());
}

TEST_F(HostWindowTest, withoutAnyLoadablePaneItStaysHidden) {
    makeBundle("A");
    write("panes/A.prefPane/Contents/libsample.so", "no library");
    openWindow();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->fault, BundleFault::BadLibrary);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(HostWindowTest, thePlaceOfTheWindowIsKept) {
    makeBundle("A");
    for (const char* stored : {"", "garbage"}) {
        settings.setValue("window", "geometry", stored);
        openWindow();
        EXPECT_TRUE(window->isVisible());
        const QRect room = window->screen()->availableGeometry();
        EXPECT_TRUE(room.contains(window->geometry()));
        const QRect place(60, 40, 640, 480);
        window->setGeometry(place);
        window->close();
        openWindow();
        EXPECT_EQ(window->geometry(), place);
        window->close();
    }
}

TEST_F(HostWindowTest, whatIsAskedForWhileItComesUpHolds) {
    makeBundle("Tabbed");
    const struct {
        const char *tab, *asked;
        int shown;
    } cases[] = {
        {"SECOND", "", 1}, {"", "", 1}, {"first", "", 0}, {"second", "third", 2}, {"", "first", 0}};
    for (const auto& row : cases) {
        openWindow({}, row.tab, [&] { turnToTab(*window, row.asked); });
        EXPECT_EQ(window->findChild<QTabWidget*>()->currentIndex(), row.shown) << row.asked;
        window->close();
        calls();
    }
    // A second instance that learns of the first leaves no trace.
    openWindow({}, "third", [&] { window->closeRegardless(); });
    EXPECT_EQ(closed->count(), 1);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(calls().filter("Select"), QStringList());
    openWindow();
    EXPECT_EQ(window->findChild<QTabWidget*>()->currentIndex(), 0);
}

TEST_F(HostWindowTest, aFullDiskTakesNothingOfWhatWasRemembered) {
    makeBundle("A");
    openWindow();
    window->close();
    QFile file(path("host.ini"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray stored = file.readAll();
    openWindow();
    const QRect place(60, 40, 640, 480);
    window->setGeometry(place);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit full{static_cast<rlim_t>(stored.size()) - 1, usual.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    window->close();
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, handler);
    QFile after(path("host.ini"));
    ASSERT_TRUE(after.open(QIODevice::ReadOnly));
    EXPECT_EQ(after.readAll(), stored);
    openWindow();
    EXPECT_EQ(window->geometry(), place) << "what could not be stored holds";
}

} // namespace
} // namespace zarvil::host
