#pragma once

#include "protocol/Value.h"

#include <QJsonObject>

/// Property lists as JSON, the form of the stand-in's files.
namespace zarvil::agent {

/// Property lists know no null: it reads as an empty text.
[[nodiscard]] Dictionary dictionaryFrom(const QJsonObject& object);
/// JSON knows no data: it becomes its base64 text.
[[nodiscard]] QJsonObject jsonFrom(const Dictionary& dictionary);

} // namespace zarvil::agent
