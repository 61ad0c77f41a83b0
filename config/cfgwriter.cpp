// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/elementwalk.h"
#include "config/indentation.h"

#include <utility>

namespace libconfig {

bool Config::buildConfigFile(QString name)
{
    return replaceFile(std::move(name), "buildConfigFile", QStringConverter::Latin1,
                       &Config::writeCfgTree);
}

void Config::writeCfgTree(QTextStream &ts)
{
    writeFileSettings(ts);
    buildConfigFile(document->firstChildElement().firstChildElement(), ts);
}

/// The settings outside any group.
void Config::writeFileSettings(QTextStream &ts)
{
    writeCfgSettings(document->firstChildElement(), {}, ts);
}

void Config::buildConfigFile(QDomNode node, QTextStream &ts)
{
    Indentation indentation;
    walkElements(
        node,
        [&](const QDomElement &group) {
            // The blank after the colon and the empty line after a group belong to the form.
            ts << indentation.text() << group.tagName() << ": \n" << indentation.text() << "{\n";
            indentation.deepen();
            writeCfgSettings(group, indentation.text(), ts);
            return ts.status() == QTextStream::Ok;
        },
        [&](const QDomElement &) {
            indentation.lessen();
            ts << indentation.text() << "};\n\n";
        });
}

void Config::writeCfgSettings(const QDomElement &group, const QString &indentation, QTextStream &ts)
{
    for (const auto &[name, value] : attributeOrder.attributesOf(group))
        ts << indentation << name << " = \"" << value << "\";\n";
}

} // namespace libconfig
