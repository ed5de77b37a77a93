#pragma once

#include <QString>

#include <ostream>

/// How GoogleTest prints texts when an expectation fails. In the namespace of QString, where it
/// looks.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
