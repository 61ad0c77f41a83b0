// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/elementwalk.h"
#include "config/indentation.h"

#include <utility>

namespace libconfig {

bool Config::buildConfigXmlFile(QString name)
{
    return replaceFile(std::move(name), "buildConfigXmlFile", QStringConverter::Utf8,
                       &Config::writeXmlTree);
}

void Config::writeXmlTree(QTextStream &ts)
{
    writeFileSettings(ts); // not XML; a tree read from an XML file has none
    buildConfigXmlFile(document->firstChildElement().firstChildElement(), ts);
}

void Config::buildConfigXmlFile(QDomNode node, QTextStream &ts)
{
    Indentation indentation;
    walkElements(
        node,
        [&](const QDomElement &group) {
            ts << '\n' << indentation.text() << '<' << group.tagName();
            indentation.deepen();
            for (const auto &[name, value] : attributeOrder.attributesOf(group))
                ts << '\n' << indentation.text() << name << " = \"" << value << '"';
            ts << ">\n";
            return ts.status() == QTextStream::Ok;
        },
        [&](const QDomElement &group) {
            indentation.lessen();
            ts << indentation.text() << "</" << group.tagName() << ">\n";
        });
}

} // namespace libconfig
