#pragma once

#include "protocol/Value.h"

#include <QByteArray>
#include <QString>

#include <variant>

/// Dictionaries as XML property lists.
namespace zarvil::agent {

/// Text that XML cannot hold (control characters, a bare carriage return) is written in base64,
/// marked by an attribute that only this reader knows; everything else is as the format has it.
[[nodiscard]] QByteArray writePropertyList(const Dictionary& root);

/// The dictionary, or in words why there is none. Dates are read as text.
[[nodiscard]] std::variant<Dictionary, QString> readPropertyList(const QByteArray& xml);

} // namespace zarvil::agent
