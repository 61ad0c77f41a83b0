// SPDX-License-Identifier: MIT
#include "render/settings.h"
#include "render/vocabulary.h"
#include "tests/recordingdevice.h"
#include "tools/check/elementtable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;
using requestcheck::Column;
using requestcheck::ElementRow;
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

} // namespace
