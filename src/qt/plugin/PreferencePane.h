#pragma once

#include <QIcon>
#include <QString>
#include <QWidget>
#include <QtPlugin>

#include <functional>

namespace zarvil {

class MessageBus;

/// What the host tells a pane about the place that it runs in.
struct PaneOptions {
    /// Put before the absolute product paths; empty for the real ones.
    QString root;
    /// The bundle folder that the pane was loaded from, absolute.
    QString bundlePath;
    /// The process's one connection to the session bus. It owns the host's name, so that others
    /// know what a pane sends by it. Never null when a pane gets it; outlives the pane.
    MessageBus* session = nullptr;
};

/// A preference pane as the host sees it. The root object of the plug-in in a pane's bundle
/// implements it; docs/bundle.md describes the bundle. All calls come on the main thread, in the
/// order of the groups below.
class PreferencePane {
public:
    /// Tells the host, once, whether a pane that answered "later" may be left after all.
    using UnselectAnswer = std::function<void(bool leave)>;

    PreferencePane() = default;
    PreferencePane(const PreferencePane&) = delete;
    PreferencePane& operator=(const PreferencePane&) = delete;
    virtual ~PreferencePane() = default;

    // Before anything else, once. The constructor of a pane does no work.
    virtual void setOptions(const PaneOptions& options) = 0;
    virtual void setUnselectAnswer(UnselectAnswer answer) = 0;

    // What the host shows.
    [[nodiscard]] virtual QString title() const = 0;
    [[nodiscard]] virtual QIcon icon() const = 0;
    /// The pane's content, made by the first call and the same at every later one. It stays the
    /// pane's: the host only lends it a parent, and takes that away before it deletes the pane.
    virtual QWidget* mainView() = 0;

    // Life. `mainViewDidLoad` comes once, after the first `mainView`; `willSelect` before each
    // showing; the others, in this order, at each leaving. `didUnselect` finds the view hidden.
    virtual void mainViewDidLoad() = 0;
    virtual void willSelect() = 0;
    /// 0 to stay, 1 to leave now, 2 to answer later; any other value counts as 1.
    virtual int shouldUnselect() = 0;
    virtual void willUnselect() = 0;
    virtual void didUnselect() = 0;
};

} // namespace zarvil

/// Changes whenever the interface does, so that a host refuses a pane built for another one. A
/// macro, since the meta-object compiler reads no constants.
#define ZARVIL_PREFERENCE_PANE_IID "com.Tessrow.PreferencePane/1.1"
Q_DECLARE_INTERFACE(zarvil::PreferencePane, ZARVIL_PREFERENCE_PANE_IID)
