#include "SamplePane.h"

#include <QFile>
#include <QFileInfo>
#include <QTabWidget>

namespace zarvil::sample {

SamplePane::~SamplePane() {
    log(view_ && !view_->parent() ? "gone" : "gone, its view with it");
    delete view_;
}

void SamplePane::setOptions(const PaneOptions& options) {
    name_ = QFileInfo(options.bundlePath).completeBaseName();
    log(options.root.isEmpty() ? "setOptions" : "setOptions " + options.root);
}

QWidget* SamplePane::mainView() {
    if (!view_) {
        view_ = new SampleView;
        view_->setObjectName(name_);
        view_->setMinimumSize(320, 200);
        if (name_ == QLatin1String("Tabbed"))
            makeTabs();
        connect(view_, &SampleView::decided, this, [this](bool leave) { answer_(leave); });
    }
    return view_;
}

void SamplePane::makeTabs() {
    auto* tabs = new QTabWidget(view_);
    for (const char* name : {"FirstTab", "SecondTab", "ThirdTab"}) {
        auto* page = new QWidget;
        page->setObjectName(name);
        tabs->addTab(page, QStringLiteral("Title"));
    }
    connect(tabs, &QTabWidget::currentChanged, this, [this, tabs](int index) {
        log(tabs->widget(index)->objectName() + (view_->isVisible() ? "" : ", hidden"));
    });
}

int SamplePane::shouldUnselect() {
    log("shouldUnselect");
    const QVariant reply = view_->property("reply");
    return reply.isValid() ? reply.toInt() : 1;
}

void SamplePane::didUnselect() { log(view_->isVisible() ? "didUnselect, shown" : "didUnselect"); }

void SamplePane::log(const QString& call) const {
    QFile file(qEnvironmentVariable("SAMPLE_PANE_LOG"));
    if (file.open(QIODevice::Append))
        file.write((name_ + ": " + call + '\n').toUtf8());
}

} // namespace zarvil::sample
