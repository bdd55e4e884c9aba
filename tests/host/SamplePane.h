#pragma once

#include "qt/plugin/PreferencePane.h"

#include <QPointer>

namespace zarvil::sample {

/// The view of the sample pane. Its dynamic property "reply" is the pane's next answer to
/// `shouldUnselect`.
class SampleView final : public QWidget {
    Q_OBJECT
public:
    Q_INVOKABLE void decide(bool leave) { Q_EMIT decided(leave); }

Q_SIGNALS:
    void decided(bool leave);
};

/// A pane that does nothing but write the calls of its life, a line each, into the file that the
/// environment variable SAMPLE_PANE_LOG names.
class SamplePane final : public QObject, public PreferencePane {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZARVIL_PREFERENCE_PANE_IID)
    Q_INTERFACES(zarvil::PreferencePane)
public:
    ~SamplePane() override;

    void setOptions(const PaneOptions& options) override;
    void setUnselectAnswer(UnselectAnswer answer) override { answer_ = std::move(answer); }
    QString title() const override { return "Title of " + name_; }
    QIcon icon() const override { return {}; }
    QWidget* mainView() override;
    void mainViewDidLoad() override { log("mainViewDidLoad"); }
    void willSelect() override { log("willSelect"); }
    int shouldUnselect() override;
    void willUnselect() override { log("willUnselect"); }
    void didUnselect() override;

private:
    void log(const QString& call) const;
    void makeTabs();

    QString name_;
    UnselectAnswer answer_;
    QPointer<SampleView> view_;
};

} // namespace zarvil::sample
