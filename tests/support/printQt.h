#pragma once

#include <QString>

#include <ostream>

/// So that a failing test prints texts that a person can read.
inline void PrintTo(const QString &text, std::ostream *out) {
  *out << '"' << text.toStdString() << '"';
}
