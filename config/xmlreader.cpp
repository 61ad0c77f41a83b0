// SPDX-License-Identifier: MIT
#include "config/config.h"

#include <QFile>

namespace libconfig {

void Config::loadXmlFile()
{
    if (!document)
        newDocument();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return;
    if (!document->setContent(&file, false)) {
        newDocument(); // without what was read before the fault
        return;
    }
    // The root element moves under a file element, the shape of a "cfg" tree. A declaration or a
    // comment before it stays where it is.
    QDomElement fileElement = document->createElement(QStringLiteral("file"));
    fileElement.setTagName(fileName);
    fileElement.appendChild(document->documentElement());
    document->appendChild(fileElement);
}

} // namespace libconfig
