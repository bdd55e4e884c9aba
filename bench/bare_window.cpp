// The measure of the start-up benchmark: a plain Qt window with a tab widget and 40 controls. With
// any argument the page in sight shows the words of the pane's first page, in their three fonts,
// and nothing else of it: what they cost alone.
#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace {

constexpr int controlsPerPage = 8;

QWidget* pageOfControls() {
    auto* content = new QWidget;
    auto* layout = new QGridLayout(content);
    for (int row = 0; row < controlsPerPage; ++row) {
        const QString text = QStringLiteral("Control %1").arg(row);
        QWidget* control = row % 3 == 0   ? static_cast<QWidget*>(new QCheckBox(text))
                           : row % 3 == 1 ? static_cast<QWidget*>(new QLineEdit(text))
                                          : static_cast<QWidget*>(new QPushButton(text));
        layout->addWidget(control, row, 0);
    }
    return content;
}

QWidget* pageOfWords() {
    struct Words {
        const char* text;
        double size = 1;
        QFont::Weight weight = QFont::Normal;
    };
    constexpr Words words[] = {
        {"Der Schutz ist ausgeschaltet", 1.3, QFont::Bold},
        {"Bei Stromausfall geschieht nichts."},
        {"Zarvil läuft"},
        {"Zarvil beenden"},
        {"Geräte"},
        {"Allgemein"},
        {"Meldungen"},
        {"Skripte"},
        {"Über"},
        {"Angeschlossen", 1, QFont::DemiBold},
        {"Überwacht", 1, QFont::DemiBold},
        {"Kein Gerät angeschlossen", 1, QFont::DemiBold},
        {"Kein Gerät überwacht", 1, QFont::DemiBold},
        {"Schließen Sie eine Stromversorgung mit einem Datenkabel an. Sie erscheint hier von "
         "selbst."},
        {"Haken Sie ein angeschlossenes Gerät an. Bis dahin bleibt ein Stromausfall unbemerkt."},
        {"Verwaltungsrechte: polkit fehlt · für keine Einstellung hier nötig"},
        {"Hilfe"}};
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    for (const Words& line : words) {
        auto* label = new QLabel(QString::fromUtf8(line.text));
        label->setWordWrap(true);
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * line.size);
        font.setWeight(line.weight);
        label->setFont(font);
        layout->addWidget(label);
    }
    return content;
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QTabWidget tabs;
    constexpr int pages = 5;
    for (int page = 0; page < pages; ++page)
        tabs.addTab(page == 0 && argc > 1 ? pageOfWords() : pageOfControls(),
                    QStringLiteral("Tab %1").arg(page));
    tabs.resize(700, 600);
    tabs.show();
    return QApplication::exec();
}
