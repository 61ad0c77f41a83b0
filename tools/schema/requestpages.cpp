// SPDX-License-Identifier: MIT
// Writes what is said about requests from the table of elements: the tables of the samples' page,
// and the manual page of the request format. Run by the build and by the tests.
//   zentaro-requestpages SAMPLES             the page, its print files as they stand in it
//   zentaro-requestpages TEMPLATE SAMPLES    the manual page, with the samples as examples
#include "render/documentsettings.h"
#include "render/vocabulary.h"
#include "tools/check/elementtable.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <span>

using namespace Qt::StringLiterals;
using requestcheck::ElementRow;
using requestcheck::Rest;

namespace {

const auto listTitle = "Elements of every list document"_L1;

QString contentOf(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll());
}

/// The rows that the other documents do not share; for -1 those that they do, and `customer`.
std::vector<const ElementRow *> rowsOf(qsizetype method)
{
    const quint16 lists = requestcheck::elementRows().front().methods;
    // The ticket reads all that are shared.
    std::vector<const ElementRow *> rows = requestcheck::rowsOf(method < 0 ? 0 : method);
    std::erase_if(rows, [&](const ElementRow *row) {
        return (row->methods == lists || row->element == element::customer) != (method < 0);
    });
    return rows;
}

/// The sentence above the rows.
QString introduction(qsizetype method)
{
    const auto reads = [method](QStringView element) {
        return requestcheck::elementRow(element, method) != nullptr;
    };
    if (rowsOf(method).empty())
        return {};
    if (!reads(element::printers))
        return u"It reads these elements and no other:\n"_s;
    return u"It reads the elements of every list document%1 and these:\n"_s.arg(
        reads(element::customer) ? ", `customer`"_L1 : ""_L1);
}

QLatin1StringView settingsGroup(const DocumentMethod &method)
{
    const std::span<const DocumentType> types = documentTypes;
    return std::ranges::find(types, method.settingsType, &DocumentType::name)->keyPrefix.chopped(1);
}

/// The print file that the page shows for a document.
QString printFileIn(const QString &page, QLatin1StringView method)
{
    return page.section("\n## "_L1 + method + u'\n', 1).section(u"```\n"_s, 1, 1);
}

QString tableOf(qsizetype method)
{
    if (rowsOf(method).empty())
        return {};
    QString table = u"\n| Element | Attributes | Settings | Prints |\n|---|---|---|---|\n"_s;
    const auto words = [](const QStringList &list) {
        return list.isEmpty() ? QString() : " `"_L1 + list.join("` `"_L1) + u'`';
    };
    for (const ElementRow *const row : rowsOf(method)) {
        QStringList names;
        for (const requestcheck::AttributeUse &use : row->attributes)
            names.append(use.name);
        table += u"| `%1` |"_s.arg(row->element) + words(names)
                 + (row->rest == Rest::InOrder ? " all, in order"_L1 : ""_L1)
                 + (row->rest == Rest::Triples ? ", then three for each document"_L1 : ""_L1)
                 + " |"_L1 + words(settingsOf(*row)) + " | "_L1 + row->prints + " |\n"_L1;
    }
    return table;
}

QString samplesPage(const QString &old)
{
    QString page = old.section("\n## "_L1 + listTitle, 0, 0) + "\n## "_L1 + listTitle
                   + u"\n\nAll documents but the fiscal ones and `printAbstractOrder` read these; "
                     "`customer` those that say so.\n"_s
                   + tableOf(-1);
    for (qsizetype i = 0; i < qsizetype(documentMethods.size()); ++i) {
        const DocumentMethod &method = documentMethods[size_t(i)];
        page += "\n## %1\n\n%2. Settings: `%3`; request: [%1.xml](%1.xml).\n"_L1.arg(
                    method.name, requestcheck::summaryOf(i), settingsGroup(method))
                + introduction(i) + tableOf(i) + "\n```\n"_L1 + printFileIn(old, method.name)
                + "```\n"_L1;
    }
    return page;
}

/// A text in the language of manual pages: words in backquotes in bold, a line for a sentence.
QString manualText(const QString &text)
{
    QString result;
    const QStringList parts = QString(text).replace(u'\\', "\\e"_L1).split(u'`');
    for (qsizetype i = 0; i < parts.size(); ++i)
        result += i % 2 == 0 ? parts[i] : "\\fB"_L1 + parts[i] + "\\fP"_L1;
    return result.replace(". "_L1, ".\n"_L1);
}

QString manualExample(const QString &text)
{
    QString result = u".Bd -literal -offset indent\n"_s;
    for (const QString &line : QString(text).replace(u'\\', "\\e"_L1).chopped(1).split(u'\n'))
        result +=
            (line.startsWith(u'.') || line.startsWith(u'\'') ? "\\&"_L1 : ""_L1) + line + u'\n';
    return result + ".Ed\n"_L1;
}

QString manualRows(qsizetype method)
{
    if (rowsOf(method).empty())
        return {};
    QString list = u".Bl -tag -width Ds\n"_s;
    for (const ElementRow *const row : rowsOf(method)) {
        list += u".It Cm %1\nPrints "_s.arg(row->element) + manualText(row->prints) + ".\n"_L1;
        if (const QStringList settings = settingsOf(*row); !settings.isEmpty())
            list += "Settings: "_L1 + settings.join(", "_L1) + ".\n"_L1;
        if (row->attributes.empty())
            continue;
        list += ".Bl -tag -width deliveryaddress -compact\n"_L1;
        for (const requestcheck::AttributeUse &use : row->attributes)
            list += ".It Va "_L1 + use.name + u'\n' + manualText(use.text) + u'\n';
        list += ".El\n"_L1;
    }
    return list + ".El\n"_L1;
}

QString manualDocuments(const QString &page, const QString &samples)
{
    QString text;
    for (qsizetype i = 0; i < qsizetype(documentMethods.size()); ++i) {
        const DocumentMethod &method = documentMethods[size_t(i)];
        text += ".Ss "_L1 + method.name + u'\n' + requestcheck::summaryOf(i)
                + ".\nIts settings are in\n.Cm "_L1 + settingsGroup(method) + " .\n"_L1
                + manualText(introduction(i)) + manualRows(i) + ".Pp\nThe request\n"_L1
                + manualExample(contentOf(samples + u'/' + method.name + ".xml"_L1))
                + ".Pp\nprints on 40 columns\n"_L1 + manualExample(printFileIn(page, method.name));
    }
    return text;
}

} // namespace

int main(int argc, char **argv)
{
    const QString samples = QFile::decodeName(argv[argc - 1]);
    const QString page = contentOf(samples + "/README.md"_L1);
    const QString text = argc == 2
                             ? samplesPage(page)
                             : contentOf(QFile::decodeName(argv[1]))
                                   .replace("@LISTS@\n"_L1, manualRows(-1))
                                   .replace("@DOCUMENTS@\n"_L1, manualDocuments(page, samples));
    return std::fputs(text.toUtf8().constData(), stdout) < 0 ? 1 : 0;
}
