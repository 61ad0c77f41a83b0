// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace libconfig {

/// The blanks before a line of a written file: four for each group that is open.
class Indentation
{
public:
    const QString &text() const { return blanks; }
    void deepen() { blanks.append(QStringLiteral("    ")); }
    void lessen() { blanks.chop(4); }

private:
    QString blanks;
};

} // namespace libconfig
