// SPDX-License-Identifier: MIT
#include "render/settings.h"
#include "render/vocabulary.h"
#include "tests/recordingdevice.h"
#include "tests/support.h"
#include "tools/check/elementtable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <span>

using namespace Qt::StringLiterals;
using requestcheck::Column;
using requestcheck::ElementRow;
using requestcheck::Rest;
using Names = std::set<QString>;

// What the check knows about elements and attributes, held against the paper.

namespace {

/// The printer, with its paper at hand.
class Paper : public CompanyPrinterDriver
{
public:
    explicit Paper(const DocumentMethod &method)
        : CompanyPrinterDriver(u"/dev/null"_s)
    {
        stream = std::make_unique<QTextStream>(&paper);
        QXmlAttributes atts;
        atts.append(u"name"_s, {}, {}, method.name);
        printed(u"method"_s, atts);
    }
    ~Paper() override { stream.reset(); }

    /// What an element prints.
    QString printed(const QString &name, const QXmlAttributes &atts)
    {
        paper.clear();
        startElement({}, {}, name, atts);
        return paper;
    }
    using PrinterDriver::settings;

private:
    QString paper;
};

/// Settings of all documents: every switch on but one, and columns that part their values.
void configureAll(QLatin1StringView off = {})
{
    QByteArray settings =
        "quantityFieldWidth=7;priceFieldWidth=8;totalPriceFieldWidth=9;paperWidth=400;";
    for (const Setting &key : loadedSettings) {
        if (key.aSwitch)
            settings += key.word.data() + QByteArray(key.word == off ? "=false;" : "=true;");
    }
    QByteArray groups;
    for (const DocumentType &type : documentTypes)
        groups += QString(type.keyPrefix).section(u'.', 1, 1).toLatin1() + ":{" + settings + "};";
    support::configure(groups);
}

/// Every attribute that any element reads, each with a number that no other bears.
QXmlAttributes everyAttribute()
{
    QStringList names{u"number"_s, u"totals"_s, u"unheard-of"_s, u"Name"_s, u"totalprice"_s};
    for (const ElementRow &row : requestcheck::elementRows()) {
        for (const requestcheck::AttributeUse &use : row.attributes)
            names.append(use.name);
    }
    names.removeDuplicates();
    QXmlAttributes atts;
    for (const QString &name : names)
        atts.append(name, {}, {}, QString::number(201 + atts.count()));
    return atts;
}

/// The attributes whose values stand on the paper.
Names seen(Paper &paper, const QString &element, const QXmlAttributes &atts)
{
    QString text = paper.printed(element, atts);
    if (element == element::printers) { // is printed by another, which then forgets it
        text = paper.printed(u"headers"_s, {});
        paper.printed(element, {});
    }
    Names names;
    for (int i = 0; i < atts.count(); ++i) {
        if (text.contains(atts.value(i)))
            names.insert(atts.qName(i));
    }
    return names;
}

Names expected(const ElementRow *row, const QXmlAttributes &atts, const DocumentSettings &settings)
{
    Names names;
    for (int i = 0; row && i < atts.count(); ++i) {
        if (fateOf(*row, atts, i, settings) == requestcheck::Fate::Printed)
            names.insert(atts.qName(i));
    }
    return names;
}

TEST(RequestTable, SaysWhatEveryDocumentPrints)
{
    std::vector<QLatin1StringView> offs{{}};
    for (const Setting &key : loadedSettings) {
        if (key.aSwitch)
            offs.push_back(key.word);
    }
    Names elements{u"print"_s, u"RECEIPE"_s};
    for (const ElementRow &row : requestcheck::elementRows())
        elements.insert(row.element.toString());
    const QXmlAttributes atts = everyAttribute();
    const auto &methods = documentMethods;
    for (const QLatin1StringView off : offs) {
        configureAll(off);
        for (const DocumentMethod &method : methods) {
            Paper paper(method);
            for (const QString &element : elements) {
                const ElementRow *const row =
                    requestcheck::elementRow(element, &method - methods.data());
                EXPECT_EQ(seen(paper, element, atts), expected(row, atts, paper.settings))
                    << method.name.data() << ' ' << element.toStdString() << " without "
                    << (off.isEmpty() ? "" : off.data());
                EXPECT_TRUE(row || paper.printed(element, atts).isEmpty()) << element.toStdString();
            }
        }
    }
}

qsizetype longestLine(const QString &text)
{
    qsizetype longest = 0;
    for (const QStringView line : qTokenize(text, u'\n'))
        longest = qMax(longest, line.size());
    return longest;
}

TEST(RequestTable, KnowsTheColumns)
{
    configureAll();
    const auto &methods = documentMethods;
    int columns = 0;
    for (const DocumentMethod &method : methods) {
        Paper paper(method);
        for (const ElementRow &row : requestcheck::elementRows()) {
            const ElementRow *const read =
                requestcheck::elementRow(row.element, &method - methods.data());
            if (read != &row || !row.hasColumns())
                continue;
            const auto longestWith = [&](const requestcheck::AttributeUse *wide, int by, int most) {
                QXmlAttributes atts;
                for (const requestcheck::AttributeUse &use : row.attributes) {
                    const int width = qBound(1, widthOf(use.column, paper.settings), most);
                    atts.append(use.name, {}, {}, QString(width + (&use == wide ? by : 0), u'8'));
                }
                return longestLine(paper.printed(row.element.toString(), atts));
            };
            const qsizetype fitting = longestWith(nullptr, 0, 99);
            EXPECT_EQ(fitting, longestWith(nullptr, 0, 1)) << row.element.toString().toStdString();
            for (const requestcheck::AttributeUse &use : row.attributes) {
                const bool isCut = use.column == Column::Description || use.column == Column::Sign;
                if (use.column == Column::None)
                    continue;
                ++columns;
                EXPECT_EQ(longestWith(&use, isCut ? 999 : 1, 99), fitting + (isCut ? 0 : 1))
                    << method.name.data() << ' ' << row.element.toString().toStdString() << ' '
                    << use.name.data();
            }
        }
    }
    EXPECT_GT(columns, 30);
}

// What is said about requests, written from the table of elements and what the samples print: the
// samples' page and the manual page. Run scripts/update-golden to rewrite them.

QString contentOf(const QString &name)
{
    return QString::fromUtf8(support::readFile(support::sourceDir() + u'/' + name));
}

QString sampleOf(QLatin1StringView method) { return contentOf(u"samples/"_s + method + u".xml"_s); }

/// What a document's sample prints, as text: without the fiscal carriage returns, which the print
/// files of 32 columns hold.
QString printedFor(QLatin1StringView method)
{
    static const support::Home home(contentOf(u"samples/zentaro-40.conf"_s).toUtf8());
    const QByteArray request = sampleOf(method).toUtf8();
    EXPECT_TRUE(request.contains("<method name=\"" + QByteArray(method.data()) + "\"/>"));
    return QString::fromUtf8(support::printed(request, home).replace("\r", QByteArray()));
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
    if (rowsOf(method).empty())
        return {};
    if (!requestcheck::elementRow(element::printers, method))
        return u"It reads these elements and no other:\n"_s;
    return u"It reads the elements of every list document%1 and these:\n"_s.arg(
        requestcheck::elementRow(element::customer, method) ? u", `customer`"_s : QString());
}

QString settingsGroup(const DocumentMethod &method)
{
    const std::span<const DocumentType> types = documentTypes;
    return std::ranges::find(types, method.settingsType, &DocumentType::name)->keyPrefix.chopped(1);
}

/// The settings that switch or shape a row.
QStringList settingsOf(const ElementRow &row)
{
    QStringList words{requestcheck::keyWordOf(row.onlyIf), row.setting};
    for (const requestcheck::AttributeUse &use : row.attributes)
        words.append(requestcheck::keyWordOf(use.onlyIf));
    words.removeAll(QString());
    return words;
}

QString tableOf(qsizetype method)
{
    if (rowsOf(method).empty())
        return {};
    QString table = u"\n| Element | Attributes | Settings | Prints |\n|---|---|---|---|\n"_s;
    const auto words = [](const QStringList &list) {
        return list.isEmpty() ? QString() : u" `"_s + list.join(u"` `"_s) + u'`';
    };
    for (const ElementRow *const row : rowsOf(method)) {
        QStringList names;
        for (const requestcheck::AttributeUse &use : row->attributes)
            names.append(use.name);
        const QString rest = row->rest == Rest::InOrder   ? u" all, in order"_s
                             : row->rest == Rest::Triples ? u", then three for each document"_s
                                                          : QString();
        table += u"| `%1` |%2%3 |%4 | %5 |\n"_s.arg(row->element, words(names), rest,
                                                    words(settingsOf(*row)), row->prints);
    }
    return table;
}

TEST(RequestPages, SamplesReference)
{
    const QString list = u"\n## Elements of every list document\n"_s;
    const QString path = u"samples/README.md"_s;
    QString page = contentOf(path).section(list, 0, 0) + list
                   + u"\nAll documents but the fiscal ones and `printAbstractOrder` read these; "
                     "`customer` those that say so.\n"_s
                   + tableOf(-1);
    for (qsizetype i = 0; i < qsizetype(documentMethods.size()); ++i) {
        const DocumentMethod &method = documentMethods[size_t(i)];
        page += u"\n## %1\n\n%2. Settings: `%3`; request: [%1.xml](%1.xml).\n"_s.arg(
                    method.name, requestcheck::summaryOf(i), settingsGroup(method))
                + introduction(i) + tableOf(i) + u"\n```\n"_s + printedFor(method.name)
                + u"```\n"_s;
    }
    support::expectReference(support::sourceDir() + u'/' + path, page.toUtf8());
}

/// A text in the language of manual pages: words in backquotes in bold, a line for a sentence.
QString manualText(const QString &text)
{
    QString result;
    const QStringList parts = QString(text).replace(u'\\', u"\\e"_s).split(u'`');
    for (qsizetype i = 0; i < parts.size(); ++i)
        result += i % 2 == 0 ? parts[i] : u"\\fB"_s + parts[i] + u"\\fP"_s;
    return result.replace(u". "_s, u".\n"_s);
}

QString manualExample(const QString &text)
{
    QString result = u".Bd -literal -offset indent\n"_s;
    for (const QString &line : QString(text).replace(u'\\', u"\\e"_s).chopped(1).split(u'\n'))
        result +=
            (line.startsWith(u'.') || line.startsWith(u'\'') ? u"\\&"_s : QString()) + line + u'\n';
    return result + u".Ed\n"_s;
}

QString manualRows(qsizetype method)
{
    if (rowsOf(method).empty())
        return {};
    QString list = u".Bl -tag -width Ds\n"_s;
    for (const ElementRow *const row : rowsOf(method)) {
        list += u".It Cm %1\nPrints %2.\n"_s.arg(row->element, manualText(row->prints));
        if (const QStringList settings = settingsOf(*row); !settings.isEmpty())
            list += u"Settings: "_s + settings.join(u", "_s) + u".\n"_s;
        if (row->attributes.empty())
            continue;
        list += u".Bl -tag -width deliveryaddress -compact\n"_s;
        for (const requestcheck::AttributeUse &use : row->attributes)
            list += u".It Va %1\n%2\n"_s.arg(use.name, manualText(use.text));
        list += u".El\n"_s;
    }
    return list + u".El\n"_s;
}

QString manualDocuments()
{
    QString text;
    for (qsizetype i = 0; i < qsizetype(documentMethods.size()); ++i) {
        const DocumentMethod &method = documentMethods[size_t(i)];
        text += u".Ss %1\n%2.\nIts settings are in\n.Cm %3 .\n"_s.arg(
                    method.name, requestcheck::summaryOf(i), settingsGroup(method))
                + manualText(introduction(i)) + manualRows(i) + u".Pp\nThe request\n"_s
                + manualExample(sampleOf(method.name)) + u".Pp\nprints on 40 columns\n"_s
                + manualExample(printedFor(method.name));
    }
    return text;
}

TEST(RequestPages, ManualReference)
{
    const QString lists = u"\nthose that say so:\n"_s;
    const QString documents = u".Sh DOCUMENTS\n"_s;
    const QString files = u".Sh FILES\n"_s;
    const QString path = u"man/zentaro-request.5"_s;
    const QString page = contentOf(path);
    support::expectReference(support::sourceDir() + u'/' + path,
                             (page.section(lists, 0, 0) + lists + manualRows(-1) + documents
                              + manualDocuments() + files + page.section(files, 1))
                                 .toUtf8());
}

} // namespace
