// SPDX-License-Identifier: MIT
// Writes what is said about requests from the table of elements: the tables of the samples' page,
// and the manual page of the request format. Run by the build and by the tests.
//   zentaro-requestpages page SAMPLES                the page, its print files as they stand in it
//   zentaro-requestpages manual TEMPLATE SAMPLES     the manual page, with the samples as examples
#include "render/documentsettings.h"
#include "render/vocabulary.h"
#include "tools/check/elementtable.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;
using requestcheck::ElementRow;
using requestcheck::Rest;

namespace {

const auto listTitle = "Elements of every list document"_L1;

QString contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

/// Whether all documents with a top read the row.
bool isShared(const ElementRow &row)
{
    return row.methods == requestcheck::elementRows().front().methods;
}

bool reads(qsizetype method, QStringView element)
{
    return requestcheck::elementRow(element, method) != nullptr;
}

/// The rows that the others do not share; for -1 those that they do, `customer` among them.
std::vector<const ElementRow *> rowsOf(qsizetype method)
{
    // The ticket reads all of the latter.
    std::vector<const ElementRow *> rows = requestcheck::rowsOf(method < 0 ? 0 : method);
    std::erase_if(rows, [method](const ElementRow *row) {
        return (isShared(*row) || row->element == element::customer) != (method < 0);
    });
    return rows;
}

/// The sentence above the rows, which `word` makes of the name of an element.
QString introduction(qsizetype method, const QString &customer)
{
    if (requestcheck::elementsOf(method).empty())
        return {};
    if (!reads(method, element::printers))
        return u"It reads these elements and no other:\n"_s;
    return "It reads the elements of every list document"_L1
           + (reads(method, element::customer) ? QString(", "_L1 + customer) : QString())
           + " and these:\n"_L1;
}

QString settingsGroup(const DocumentMethod &method)
{
    const auto &types = documentTypes;
    const auto type = std::ranges::find(types, method.settingsType, &DocumentType::name);
    return type->keyPrefix.chopped(1);
}

/// The print file that the page shows for a document.
QString printFileIn(const QString &page, QLatin1StringView method)
{
    return page.section("\n## "_L1 + method + u'\n', 1).section(u"```\n"_s, 1, 1);
}

QString tableOf(qsizetype method)
{
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
                + introduction(i, u"`customer`"_s) + (rowsOf(i).empty() ? QString() : tableOf(i))
                + "\n```\n"_L1 + printFileIn(old, method.name) + "```\n"_L1;
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

QString manualDocuments(const QString &samples)
{
    const QString page = contentOf(samples + "/README.md"_L1);
    QString text;
    for (qsizetype i = 0; i < qsizetype(documentMethods.size()); ++i) {
        const DocumentMethod &method = documentMethods[size_t(i)];
        text += ".Ss "_L1 + method.name + u'\n' + requestcheck::summaryOf(i)
                + ".\nIts settings are in\n.Cm "_L1 + settingsGroup(method) + " .\n"_L1
                + introduction(i, u"customer"_s) + (rowsOf(i).empty() ? QString() : manualRows(i))
                + ".Pp\nThe request\n"_L1
                + manualExample(contentOf(samples + u'/' + method.name + ".xml"_L1))
                + ".Pp\nprints on 40 columns\n"_L1 + manualExample(printFileIn(page, method.name));
    }
    return text;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QFile::decodeName(argv[i]));
    QString text;
    if (words.size() == 2 && words[0] == "page"_L1)
        text = samplesPage(contentOf(words[1] + "/README.md"_L1));
    else if (words.size() == 3 && words[0] == "manual"_L1)
        text = contentOf(words[1])
                   .replace("@LISTS@\n"_L1, manualRows(-1))
                   .replace("@DOCUMENTS@\n"_L1, manualDocuments(words[2]));
    else
        qFatal("usage: page SAMPLES | manual TEMPLATE SAMPLES");
    const QByteArray bytes = text.toUtf8();
    return std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout) == size_t(bytes.size())
               ? 0
               : 1;
}
