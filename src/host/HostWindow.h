#pragma once

#include "host/PaneDriver.h"
#include "posix/SettingsFile.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QListWidget;
class QTabWidget;
class QVBoxLayout;

namespace zarvil::host {

/// The one window: a single pane, or a list of panes beside the chosen one. A pane is left when
/// another is chosen or the window is closed; a minimised window's pane stays selected.
class HostWindow final : public QWidget {
    Q_OBJECT
public:
    /// Needs at least one pane. Broken bundles are listed, with the reason in place of a pane.
    HostWindow(const std::vector<BundleOutcome>& bundles, const PaneOptions& options,
               posix::SettingsFile& settings);
    ~HostWindow() override;

    /// Makes the view of the first pane that can be loaded; what failed if there is none. The
    /// pane's life does not begin yet.
    [[nodiscard]] std::optional<BundleFailure> prepare();
    /// Prepares what is not, and shows it, at the tab of this name if there is one. Takes in what
    /// came in over the bus meanwhile, which may close it.
    [[nodiscard]] std::optional<BundleFailure> open(const QString& tab = {});
    /// Leaves the pane, whatever it answers, and closes.
    void closeRegardless();

Q_SIGNALS:
    /// The window is hidden and its pane has been left.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Entry {
        std::unique_ptr<PaneDriver> driver;
        QString fault;
    };
    /// A row of the list, or nothing to close the window.
    using Target = std::optional<std::size_t>;

    void makeList();
    void makeEntry(const BundleOutcome& bundle, const PaneOptions& options);
    void wish(Target target);
    void proceed(bool left);
    void turnTo(std::size_t row);
    void showPane(std::size_t row);
    void showFault(const QString& fault);
    void finish();
    void markCurrent();
    void restorePlace();
    [[nodiscard]] QTabWidget* tabs() const;
    [[nodiscard]] std::string tabKey() const;
    void restoreTab();
    void rememberTab();

    std::vector<Entry> entries_;
    posix::SettingsFile& settings_;
    QVBoxLayout* content_ = nullptr;
    QPointer<QWidget> view_; ///< of the pane that is shown
    QListWidget* list_ = nullptr;
    QLabel* faultLabel_ = nullptr;
    std::size_t current_ = 0;
    Target wished_;
    bool leaving_ = false;
    bool finished_ = false;
};

} // namespace zarvil::host
