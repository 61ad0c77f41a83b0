// SPDX-License-Identifier: MIT
#include "tools/config/template.h"

#include <QDir>
#include <QFile>

// A resource of a static library is linked only when it is called for, outside any namespace.
static void initResource()
{
    Q_INIT_RESOURCE(templates);
}

namespace configtool {

using namespace Qt::StringLiterals;

QByteArray startingConfiguration(const QString &columns)
{
    initResource();
    if (columns != "32"_L1 && columns != "40"_L1)
        return {};
    QFile file(":/templates/zentaro-"_L1 + columns + ".conf"_L1);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace configtool
