#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace condtree::workbench {

/// Something that is wrong in a JSON text, and at which byte, counted from 0.
struct JsonFlaw {
    QString what;
    qsizetype offset;
};

/// The first thing in a text that QJsonDocument accepts but a strict reader does not: a key given
/// twice in one object, control characters within a text, unknown escapes, numbers that begin or
/// end with their decimal point. json must be a text that QJsonDocument has parsed without an
/// error.
[[nodiscard]] std::optional<JsonFlaw> findJsonFlaw(QByteArrayView json);

/// Where a text gets more than limit values (objects, lists and whatever stands in them); none when
/// it does not. json may be any bytes.
[[nodiscard]] std::optional<qsizetype> findTooManyValues(QByteArrayView json, qsizetype limit);

} // namespace condtree::workbench
