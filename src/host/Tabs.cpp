#include "host/Tabs.h"

#include <QTabWidget>

#include <algorithm>

namespace zarvil::host {

namespace {

/// Of several panes' the one that is shown; the only one before anything is.
QTabWidget* tabsOf(const QWidget& window) {
    const auto all = window.findChildren<QTabWidget*>();
    const auto shown = std::ranges::find_if(all, &QWidget::isVisible);
    if (shown != all.end())
        return *shown;
    return all.isEmpty() || window.isVisible() ? nullptr : all.first();
}

QString nameOf(const QWidget& page) {
    QString name = page.objectName();
    if (name.endsWith(QLatin1String("Tab")))
        name.chop(3);
    return name.toLower();
}

QStringList namesIn(const QTabWidget* tabs) {
    QStringList names;
    for (int index = 0; tabs && index < tabs->count(); ++index)
        names += nameOf(*tabs->widget(index));
    return names;
}

} // namespace

QStringList tabNames(const QWidget& window) {
    QStringList names = namesIn(tabsOf(window));
    names.removeAll(QString());
    return names;
}

bool turnToTab(const QWidget& window, const QString& name) {
    QTabWidget* tabs = tabsOf(window);
    const auto index = name.isEmpty() ? -1 : namesIn(tabs).indexOf(name.toLower());
    if (!tabs || index < 0)
        return false;
    tabs->setCurrentIndex(static_cast<int>(index));
    return true;
}

} // namespace zarvil::host
