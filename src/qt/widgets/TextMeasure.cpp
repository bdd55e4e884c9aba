#include "qt/widgets/TextMeasure.h"

#include <QCoreApplication>
#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QWidget>

#include <memory>

namespace zarvil::qt {

namespace {

constexpr int unwrapped = -1;
/// Several times what all pages hold; texts that change from second to second do not pile up.
constexpr qsizetype mostRemembered = 1000;

struct Question {
    QString text;
    QFont font;
    int flags;
    int width;
    int resolution; ///< of the screen: it belongs to no font's identity

    bool operator==(const Question&) const = default;
    friend std::size_t qHash(const Question& question, std::size_t seed = 0) {
        return qHashMulti(seed, question.text, question.font, question.flags, question.width);
    }
};

using Answers = QHash<Question, QSize>;
std::unique_ptr<Answers> answers;

Answers& known() {
    if (!answers) {
        answers = std::make_unique<Answers>();
        // Fonts must not outlive the application.
        qAddPostRoutine([] { answers.reset(); });
    }
    if (answers->size() >= mostRemembered)
        answers->clear();
    return *answers;
}

QSize measured(const Question& question) {
    const QFontMetrics metrics(question.font);
    return question.width == unwrapped ? metrics.size(question.flags, question.text)
                                       : metrics
                                             .boundingRect(0, 0, question.width, QWIDGETSIZE_MAX,
                                                           question.flags, question.text)
                                             .size();
}

} // namespace

QSize textSize(const QWidget& widget, const QFont& font, int flags, const QString& text,
               int width) {
    if (width != unwrapped) {
        // Most texts fit, and are shaped once for all widths that they fit in.
        const int mnemonic = Qt::TextShowMnemonic | Qt::TextHideMnemonic;
        const QSize natural =
            textSize(widget, font, (flags & mnemonic) != 0 ? Qt::TextShowMnemonic : 0, text);
        if (natural.width() <= width)
            return natural;
    }
    const Question question{text, font, flags, width, widget.logicalDpiY()};
    Answers& all = known();
    auto answer = all.constFind(question);
    if (answer == all.constEnd())
        answer = all.insert(question, measured(question));
    return *answer;
}

QSize textSize(const QWidget& widget, const QFont& font, int flags, const QString& text) {
    return textSize(widget, font, flags, text, unwrapped);
}

} // namespace zarvil::qt
