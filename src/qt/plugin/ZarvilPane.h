#pragma once

#include "qt/plugin/PreferencePane.h"

#include <QObject>

#include <memory>

namespace zarvil {

/// The root object of the pane's plug-in: makes the ports, the controller and the layout, and
/// passes the host's calls on.
class ZarvilPane final : public QObject, public PreferencePane {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZARVIL_PREFERENCE_PANE_IID)
    Q_INTERFACES(zarvil::PreferencePane)

public:
    ZarvilPane();
    ~ZarvilPane() override;

    void setOptions(const PaneOptions& options) override;
    /// Unused: this pane always gives way at once.
    void setUnselectAnswer(UnselectAnswer answer) override;

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QIcon icon() const override;
    QWidget* mainView() override;

    void mainViewDidLoad() override;
    void willSelect() override;
    int shouldUnselect() override;
    void willUnselect() override;
    void didUnselect() override;

private:
    struct Loaded;

    PaneOptions options_;
    std::unique_ptr<Loaded> loaded_; ///< null until the first `mainView`
};

} // namespace zarvil
