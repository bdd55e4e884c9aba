#pragma once

#include "qt/plugin/PreferencePane.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <variant>
#include <vector>

namespace zarvil::host {

/// What a pane's bundle says of itself, read from its Contents/Info.json.
struct Bundle {
    QString path; ///< the bundle folder, absolute
    QString name; ///< what the user sees in a list of panes, fit for display
    QString identifier;
    QString version;
    QString library;        ///< the plug-in, absolute
    QString principalClass; ///< qualified class name of the plug-in's root object
    QString icon;           ///< an image, absolute; empty without one
};

enum class BundleFault { NotFound, NotABundle, BadInfo, NoLibrary, BadLibrary, WrongInterface };

/// Why a bundle cannot be used, in words for the user.
struct BundleFailure {
    BundleFault fault;
    QString path;
    QString message;
};

using BundleOutcome = std::variant<Bundle, BundleFailure>;
using PaneOutcome = std::variant<std::unique_ptr<PreferencePane>, BundleFailure>;

/// Reads the description; loads no code.
[[nodiscard]] BundleOutcome readBundle(const QString& path);

/// The bundles in the folders, sorted by file name within each. Of bundles with one identifier the
/// first counts. A folder that is missing holds none; a broken bundle is listed as such.
[[nodiscard]] std::vector<BundleOutcome> findBundles(const QStringList& folders);

/// Where panes are installed: the user's folder, then the one that was installed with the program,
/// wherever both are now. Needs the application object.
[[nodiscard]] QStringList bundleFolders();

/// Loads the plug-in, which stays loaded for the life of the process. A pane can be loaded once.
[[nodiscard]] PaneOutcome loadPane(const Bundle& bundle);

} // namespace zarvil::host
