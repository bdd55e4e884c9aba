#include "qt/adapters/QtUserDefaults.h"

#include "pane/Product.h"
#include "posix/AtomicFile.h"
#include "protocol/Value.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <utility>

namespace zarvil {

namespace {

Q_LOGGING_CATEGORY(defaultsLog, "zarvil.defaults", QtInfoMsg)

constexpr const char* section = "[General]";
constexpr mode_t ownersAlone = 0600;

/// The lines of a file and the one that holds a key, or would be before that place.
struct Place {
    Place(const QByteArray& content, const QByteArray& key) : lines(content.split('\n')) {
        line = lines.indexOf(section) + 1;
        const qsizetype first = line;
        while (first > 0 && line < lines.size() && !lines[line].startsWith('[')) {
            if (lines[line].startsWith(key + '=')) {
                isThere = true;
                return;
            }
            ++line;
        }
        line = first;
    }

    QList<QByteArray> lines;
    qsizetype line = 0; ///< zero without a section
    bool isThere = false;
};

QByteArray valueIn(const QByteArray& content, const QByteArray& key) {
    const Place place(content, key);
    return place.isThere ? place.lines[place.line].mid(key.size() + 1).trimmed() : QByteArray();
}

QByteArray withValue(const QByteArray& content, const QByteArray& key, bool value) {
    Place place(content, key);
    const QByteArray line = key + (value ? "=true" : "=false");
    if (place.line == 0)
        return QByteArray(section) + '\n' + line + '\n' + content;
    if (place.isThere)
        place.lines[place.line] = line;
    else
        place.lines.insert(place.line, line);
    return place.lines.join('\n');
}

} // namespace

QtUserDefaults::QtUserDefaults(const QString& path) : path_(path) {
    if (!read())
        report();
}

QString QtUserDefaults::userFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' +
           QString::fromUtf8(product::maker) + '/' + QString::fromUtf8(product::preferencesName) +
           ".ini";
}

bool QtUserDefaults::boolForKey(std::string_view key) const {
    if (const auto found = unwritten_.find(key); found != unwritten_.end())
        return found->second;
    const QByteArray name(key.data(), static_cast<qsizetype>(key.size()));
    return Value(valueIn(content_, name).toStdString()).boolValue();
}

void QtUserDefaults::setBool(bool value, std::string_view key) {
    unwritten_.insert_or_assign(std::string(key), value);
    // Read again: another process may have written.
    if (!read() || !write())
        report();
}

bool QtUserDefaults::read() {
    QFile file(path_);
    if (!file.exists()) {
        content_.clear();
        return true;
    }
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return false;
    content_ = content;
    return true;
}

bool QtUserDefaults::write() {
    QByteArray content = content_;
    for (const auto& [key, value] : unwritten_)
        content = withValue(content, QByteArray::fromStdString(key), value);
    const QFileInfo file(path_);
    QDir().mkpath(file.path());
    const QString target = file.exists() ? file.canonicalFilePath() : path_; // behind a link
    posix::AtomicFile replacement(QFile::encodeName(target).toStdString());
    if (replacement.prepare(content.toStdString(), ownersAlone) != 0 || replacement.commit() != 0)
        return false;
    content_ = content;
    unwritten_.clear();
    return true;
}

void QtUserDefaults::report() {
    if (!std::exchange(reported_, true))
        qCWarning(defaultsLog).noquote()
            << "The preferences file cannot be read or written:" << path_;
}

} // namespace zarvil
