#include "host/Bundle.h"

#include "interface/DisplayText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPluginLoader>
#include <QSet>

#include <optional>

namespace zarvil::host {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Bundle)
};

BundleFailure failure(BundleFault fault, const QString& path, const QString& message) {
    // It quotes the bundle's own words and path.
    const std::string shown = showableText(message.toStdString(), longestShownMessage);
    return {fault, path, QString::fromUtf8(shown)};
}

QString shownName(const QString& name) {
    return QString::fromUtf8(showableText(name.toStdString(), longestShownLine));
}

using InfoOutcome = std::variant<QJsonObject, BundleFailure>;

InfoOutcome readInfo(const QString& path) {
    QFile file(path + "/Contents/Info.json");
    // What is no plain file may never end, or never begin.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return failure(BundleFault::NotABundle, path,
                       Texts::tr("\"%1\" is not a preference pane: its Contents/Info.json cannot "
                                 "be read.")
                           .arg(path));
    // A description is a few lines; whatever is longer is none.
    constexpr qint64 longest = 1 << 20;
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(file.read(longest), &error);
    if (error.error != QJsonParseError::NoError)
        return failure(BundleFault::BadInfo, path,
                       Texts::tr("The preference pane \"%1\" is broken: Contents/Info.json is not "
                                 "valid JSON at byte %2 (%3).")
                           .arg(path)
                           .arg(error.offset)
                           .arg(error.errorString()));
    if (!document.isObject())
        return failure(BundleFault::BadInfo, path,
                       Texts::tr("The preference pane \"%1\" is broken: Contents/Info.json does "
                                 "not hold an object.")
                           .arg(path));
    return document.object();
}

std::optional<BundleFailure> checkEntries(const QString& path, const QJsonObject& info) {
    for (const char* key : {"name", "identifier", "version", "library", "principalClass"})
        if (info.value(QLatin1String(key)).toString().isEmpty())
            return failure(BundleFault::BadInfo, path,
                           Texts::tr("The preference pane \"%1\" is broken: the text \"%2\" is "
                                     "missing in Contents/Info.json.")
                               .arg(path, QLatin1String(key)));
    return std::nullopt;
}

/// A file named in the description; empty unless it lies within the bundle.
QString fileWithin(const QString& bundle, const QString& name) {
    const QString contents = QDir::cleanPath(bundle + "/Contents") + '/';
    const QString file = QDir::cleanPath(contents + name);
    return !name.isEmpty() && file.startsWith(contents) ? file : QString();
}

} // namespace

BundleOutcome readBundle(const QString& path) {
    const QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (!QFileInfo::exists(folder))
        return failure(BundleFault::NotFound, folder,
                       Texts::tr("The preference pane \"%1\" does not exist.").arg(folder));
    const auto read = readInfo(folder);
    if (const auto* broken = std::get_if<BundleFailure>(&read))
        return *broken;
    const auto& info = std::get<QJsonObject>(read);
    if (auto broken = checkEntries(folder, info))
        return *broken;
    const QString library = fileWithin(folder, info.value("library").toString());
    if (!QFileInfo(library).isFile())
        return failure(BundleFault::NoLibrary, folder,
                       Texts::tr("The preference pane \"%1\" is broken: its library \"%2\" is "
                                 "missing.")
                           .arg(folder, info.value("library").toString()));
    const QString icon = fileWithin(folder, info.value("icon").toString());
    return Bundle{folder,
                  shownName(info.value("name").toString()),
                  info.value("identifier").toString(),
                  info.value("version").toString(),
                  library,
                  info.value("principalClass").toString(),
                  QFileInfo(icon).isFile() ? icon : QString()};
}

std::vector<BundleOutcome> findBundles(const QStringList& folders) {
    std::vector<BundleOutcome> found;
    QSet<QString> identifiers;
    for (const QString& folder : folders) {
        const auto entries = QDir(folder).entryInfoList(
            {"*.prefPane"}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QFileInfo& entry : entries) {
            auto outcome = readBundle(entry.absoluteFilePath());
            if (const auto* bundle = std::get_if<Bundle>(&outcome)) {
                if (identifiers.contains(bundle->identifier))
                    continue;
                identifiers.insert(bundle->identifier);
            }
            found.push_back(std::move(outcome));
        }
    }
    return found;
}

QStringList bundleFolders() {
    return {QDir::homePath() + "/Library/PreferencePanes",
            QDir::cleanPath(QCoreApplication::applicationDirPath() + '/' +
                            QStringLiteral(ZARVIL_PANES_FROM_PROGRAM))};
}

PaneOutcome loadPane(const Bundle& bundle) {
    QPluginLoader loader(bundle.library);
    const QJsonObject metaData = loader.metaData();
    const QString interface = metaData.value("IID").toString();
    if (!interface.isEmpty() && interface != QLatin1String(ZARVIL_PREFERENCE_PANE_IID))
        return failure(BundleFault::WrongInterface, bundle.path,
                       Texts::tr("The preference pane \"%1\" was made for another program: its "
                                 "library offers \"%2\" instead of \"%3\".")
                           .arg(bundle.path, interface, ZARVIL_PREFERENCE_PANE_IID));
    QObject* root = loader.instance();
    if (!root)
        return failure(BundleFault::BadLibrary, bundle.path,
                       Texts::tr("The library of the preference pane \"%1\" cannot be loaded: %2")
                           .arg(bundle.path, loader.errorString()));
    auto* pane = qobject_cast<PreferencePane*>(root);
    if (!pane || bundle.principalClass != QLatin1String(root->metaObject()->className())) {
        const QString offered = QLatin1String(root->metaObject()->className());
        delete root;
        return failure(BundleFault::WrongInterface, bundle.path,
                       Texts::tr("The preference pane \"%1\" is broken: its library offers the "
                                 "class \"%2\" instead of \"%3\".")
                           .arg(bundle.path, offered, bundle.principalClass));
    }
    return std::unique_ptr<PreferencePane>(pane);
}

} // namespace zarvil::host
