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

HelpWindow::HelpWindow(QWidget& view, const StringTable& strings)
    : QDialog(&view),
      view_(view),
      strings_(strings),
      tabs_(view.findChild<QTabWidget*>(QStringLiteral("tabView"))),
      text_(new QTextBrowser(this)) {
    setObjectName("HelpWindow");
    text_->setAccessibleName(tr("Help"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* point = buttons->addButton(tr("What Is &This?"), QDialogButtonBox::HelpRole);
    point->setToolTip(tr("Explains the control of the window that you click next"));
    connect(point, &QPushButton::clicked, this, [this] {
        view_.window()->activateWindow();
        QWhatsThis::enterWhatsThisMode();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(text_);
    rows->addWidget(buttons);

    connect(tabs_, &QTabWidget::currentChanged, this, &HelpWindow::tellOfTab);
    auto* key = new QShortcut(QKeySequence::HelpContents, &view);
    connect(key, &QShortcut::activated, this, &HelpWindow::present);
    if (auto* button = view.findChild<QAbstractButton*>(QStringLiteral("HelpButton")))
        connect(button, &QAbstractButton::clicked, this, &HelpWindow::present);
    explainControls();
}

void HelpWindow::present() {
    if (!isVisible()) {
        const int line = theme::lineHeight(*this);
        resize(firstWidth * line, firstHeight * line);
        tellOfTab();
    }
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

void HelpWindow::explainControls() const {
    for (const auto& [outlet, text] : helpOfControls(strings_))
        if (auto* control = view_.findChild<QWidget*>(QString::fromUtf8(outlet)))
            control->setWhatsThis(QString::fromStdString(text).toHtmlEscaped());
}

} // namespace zarvil::qt
