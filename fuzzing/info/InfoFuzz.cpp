#include "Input.h"
#include "agent/Json.h"
#include "host/Bundle.h"
#include "interface/DisplayText.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QTemporaryDir>

/// Any bytes as a bundle's Info.json, and as the JSON of the stand-in agent's files.
namespace zarvil::fuzz {

namespace {

/// A bundle with a library in it, so that a good description leads to one.
class Folder {
public:
    Folder() {
        QDir().mkpath(bundle() + "/Contents/lib");
        write("lib/x.so", "no library");
        write("icon.png", "no picture");
    }
    void write(const QString& name, const std::string& bytes) const {
        QFile file(bundle() + "/Contents/" + name);
        require(file.open(QIODevice::WriteOnly) &&
                    file.write(bytes.data(), static_cast<qint64>(bytes.size())) >= 0,
                "a file is written");
    }
    [[nodiscard]] QString bundle() const { return folder_.filePath("A.prefPane"); }

private:
    QTemporaryDir folder_;
};

bool isShowable(const QString& text) {
    const std::string bytes = text.toStdString();
    return !bytes.empty() && showableText(bytes, 2 * longestShownMessage) == bytes;
}

void check(const host::BundleOutcome& outcome, const QString& folder) {
    if (const auto* failure = std::get_if<host::BundleFailure>(&outcome)) {
        require(isShowable(failure->message), "the reason can be shown");
        return;
    }
    const auto& bundle = std::get<host::Bundle>(outcome);
    const QString contents = folder + "/Contents/";
    require(isShowable(bundle.name), "the name can be shown");
    require(bundle.library.startsWith(contents) && QFile::exists(bundle.library),
            "the library lies within the bundle");
    require(bundle.icon.isEmpty() || bundle.icon.startsWith(contents),
            "the icon lies within the bundle");
    require(!bundle.identifier.isEmpty() && !bundle.version.isEmpty() &&
                !bundle.principalClass.isEmpty(),
            "nothing that must be there is missing");
}

void checkJson(const std::string& text) {
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(text));
    const Dictionary read = agent::dictionaryFrom(document.object());
    require(agent::dictionaryFrom(agent::jsonFrom(read)) == read,
            "a file is read as it is written");
}

} // namespace

} // namespace zarvil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace zarvil;
    static const fuzz::Folder folder;
    fuzz::Input input(bytes, size);
    const std::string text = input.rest();
    folder.write("Info.json", text);
    fuzz::check(host::readBundle(folder.bundle()), folder.bundle());
    fuzz::checkJson(text);
    return 0;
}
