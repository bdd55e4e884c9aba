// The measure of the start-up benchmark: a plain Qt window with a tab widget and 40 controls.
#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QTabWidget tabs;
    constexpr int pages = 5;
    constexpr int controlsPerPage = 8;
    for (int page = 0; page < pages; ++page) {
        auto* content = new QWidget;
        auto* layout = new QGridLayout(content);
        for (int row = 0; row < controlsPerPage; ++row) {
            const QString text = QStringLiteral("Control %1").arg(row);
            QWidget* control = row % 3 == 0   ? static_cast<QWidget*>(new QCheckBox(text))
                               : row % 3 == 1 ? static_cast<QWidget*>(new QLineEdit(text))
                                              : static_cast<QWidget*>(new QPushButton(text));
            layout->addWidget(control, row, 0);
        }
        tabs.addTab(content, QStringLiteral("Tab %1").arg(page));
    }
    tabs.resize(700, 600);
    tabs.show();
    return QApplication::exec();
}
