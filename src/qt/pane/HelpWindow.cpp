#include "qt/pane/HelpWindow.h"

#include "pane/Help.h"
#include "qt/widgets/Theme.h"
#include "scripts/ScriptFile.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <QWhatsThis>

namespace zarvil::qt {

namespace {

// In heights of a line.
constexpr int firstWidth = 26;
constexpr int firstHeight = 24;

QString escaped(const std::string& text) { return QString::fromStdString(text).toHtmlEscaped(); }

QString inHtml(const HelpPage& page) {
    QString html;
    for (const auto& [heading, text] : page.sections)
        html += "<h3>" + escaped(heading) + "</h3><p>" + escaped(text) + "</p>";
    return html;
}

} // namespace

void HelpWindow::offer(QWidget& view, const StringTable& strings) {
    const auto open = [&view, &strings] {
        auto* window = view.findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
        (window ? window : new HelpWindow(view, strings))->present();
    };
    connect(new QShortcut(QKeySequence::HelpContents, &view), &QShortcut::activated, &view, open);
    if (auto* button = view.findChild<QAbstractButton*>(QStringLiteral("HelpButton")))
        connect(button, &QAbstractButton::clicked, &view, open);
}

void HelpWindow::explainControls(const QWidget& part, const StringTable& strings) {
    for (const auto& [outlet, text] : helpOfControls(strings))
        if (auto* control = part.findChild<QWidget*>(QString::fromUtf8(outlet)))
            control->setWhatsThis(escaped(text));
}

HelpWindow::HelpWindow(QWidget& view, const StringTable& strings)
    : QDialog(&view),
      strings_(strings),
      tabs_(view.findChild<QTabWidget*>(QStringLiteral("tabView"))),
      text_(new QTextBrowser(this)) {
    setObjectName("HelpWindow");
    text_->setAccessibleName(tr("Help"));
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(text_);
    addButtons(view);
    const int line = theme::lineHeight(*this);
    resize(firstWidth * line, firstHeight * line);
    connect(tabs_, &QTabWidget::currentChanged, this, &HelpWindow::tellOfTab);
    tellOfTab();
}

void HelpWindow::addButtons(QWidget& view) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    // The style's picture is dark in every theme.
    buttons->button(QDialogButtonBox::Close)->setIcon({});
    auto* point = buttons->addButton(tr("What Is &This?"), QDialogButtonBox::HelpRole);
    point->setToolTip(tr("Explains the control of the window that you click next"));
    connect(point, &QPushButton::clicked, &view, [&view] {
        view.window()->activateWindow();
        QWhatsThis::enterWhatsThisMode();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    layout()->addWidget(buttons);
}

void HelpWindow::present() {
    show();
    raise();
    activateWindow();
}

void HelpWindow::tellOfTab() {
    const int index = tabs_->currentIndex();
    if (index < 0)
        return;
    const HelpPage page = helpOf(static_cast<Tab>(index), kZVScriptingFolder, strings_);
    setWindowTitle(QString::fromStdString(page.title));
    text_->setHtml(inHtml(page));
}

} // namespace zarvil::qt
