// SPDX-License-Identifier: MIT
#include "render/vocabulary.h"
#include "tests/checkedrequests.h"
#include "tools/schema/schema.h"

#include <QDir>
#include <QTextCodec>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using support::Codes;
using support::codesIn;
using support::document;
using support::findingsIn;

// What is wrong with requests, each beside one that is fine, and where it is told.

namespace {

QByteArray item(const QByteArray &name, const QByteArray &price)
{
    return document("FullOrder", "<receipe number='1' name='" + name + "' price='" + price
                                     + "' totalPrice='1'/>");
}

QByteArray fiscal(const QByteArray &name, const QByteArray &number, const QByteArray &price,
                  const QByteArray &department)
{
    return document("FullOrderFiscal", "<receipe name='" + name + "' number='" + number
                                           + "' price='" + price + "' department='" + department
                                           + "'/>");
}

/// A whole one, with a second item unless its name is empty.
QByteArray order(const QByteArray &first, const QByteArray &second)
{
    const auto item = [](const QByteArray &name) {
        return "<receipe number='1' name='" + name + "' price='1' totalPrice='1'/>";
    };
    return document("FullOrder",
                    item(first) + (second.isEmpty() ? "" : item(second)) + "<total price='1'/>");
}

QByteArray headers(const QByteArray &value)
{
    return document("Sold", "<headers a='" + value + "'/>");
}

QByteArray company(qsizetype size)
{
    return document("Sold", "<company a='" + QByteArray(size, 'x') + "'/>");
}

QByteArray report(const QByteArray &element) { return document("Report", "<" + element + "/>"); }

QByteArray customer(const QByteArray &address)
{
    return document("FullOrder", "<customer name='' billingaddress='" + address + "'/>");
}

QByteArray entities(const QByteArray &value, int references)
{
    return "<!DOCTYPE p [<!ENTITY e '" + value + "'>]>"
           + document("Sold", "<headers a='" + QByteArray("&e;").repeated(references) + "'/>"
                                  + QByteArray(40'000, ' '));
}

QByteArray nested(int depth)
{
    return document("Sold",
                    QByteArray("<logo>").repeated(depth) + QByteArray("</logo>").repeated(depth));
}

/// A request that raises a code and no other, and one beside it that raises none.
struct Pair
{
    const char *code;
    QByteArray faulty;
    QByteArray fine;
};

const QByteArray sold = document("Sold", "");
const QByteArray soldItem = "<receipe quantity='1' description='a' amount='1'/>";

const std::vector<Pair> requestFaults = {
    {"xml", document("Sold", "<logo>"), document("Sold", "<logo></logo>")},
    {"xml", "", sold},
    {"xml", document("Sold", "\xEF\xBF\xBF"), document("Sold", "\xEF\xBF\xBC")},
    {"limit", nested(1'000), nested(999)},
    {"limit", entities(QByteArray(1'000, 'x'), 10'001), entities("&#38;#38;&amp;", 9)},
    {"limit", "<!DOCTYPE p [" + QByteArray("<!-- -->").repeated(5'000) + "]>" + sold,
     "<!DOCTYPE p []>" + sold},
    {"no-method", "<p/>", sold},
    {"unknown-method", document("sold", soldItem), document("Sold", soldItem)},
    {"unknown-method", "<method Name='printSold'/>", "<method name='printSold'/>"},
    {"before-method", "<p><logo/><method name='printSold'/></p>", document("Sold", "<logo/>")},
    {"before-method", "<receipe><method name='printSold'/></receipe>",
     "<recipe><method name='printSold'/></recipe>"},
    {"second-method", document("Sold", "<method name='printSold'/>"), sold},
    {"unknown-element", document("Sold", "<total price='1'/>"),
     document("FullOrder", "<total price='1'/>")},
    {"unknown-element", document("Sold", "<Logo/>"), document("Sold", "<logo/>")},
    {"unknown-element", document("Sold", "<group/>"),
     document("Sold", "<group xml:space='preserve'>" + soldItem + "</group>")},
    {"unknown-element", document("Sold", "<reciepe>" + soldItem + "</reciepe>"),
     document("Sold", "<a><b><logo/></b><logo/></a>")},
    {"unknown-element", document("Sold", "<items b=''>" + soldItem + "</items>"),
     document("Sold", "<items>" + soldItem + "</items>")},
    {"before-method", "<p><a b=''><method name='printSold'/></a></p>",
     "<p><a><method name='printSold'/></a></p>"},
    {"no-items", document("PartialOrder", "<variant number='' name='' quantity='1'/>"),
     document("PartialOrder", "<otherreceipe number='1' name='a'/>")},
    {"no-items", document("FullOrderFiscal", ""), fiscal("a", "1", "1", "1")},
    {"no-items", order("=a", ""), order("a", "")},
    {"no-total", item("a", "1"), order("a", "")},
    {"no-printer", document("Sold", "<headers/><printers name='a'/>"),
     document("Sold", "<printers name='a'/><headers/>")},
    {"hidden-item", order("a", "="), order("a", "a=")},
    {"unknown-attribute", document("Sold", "<logo name='a'/>"),
     document("Sold", "<logo xmlns='a' xmlns:b='c'/>")},
    {"unknown-attribute", document("Sold", "").replace("Sold'", "Sold' copies='2'"), sold},
    {"unknown-attribute", report("date begindate='' enddate='' number=''"),
     report("date begindate='' enddate=''")},
    {"duplicate-attribute", item("a", "1' price='2"), item("a", "1")},
    {"missing-attribute", document("Sold", "<receipe quantity='1' description='a'/>"),
     document("Sold", "<receipe quantity='' description='' amount=''/>")},
    {"missing-attribute", document("FullOrder", "<receipe name='a'/>"),
     document("FullOrder", "<receipe name='=a'/>")},
    {"missing-attribute", document("Sold", "<orderinfo/>"),
     document("Sold", "<orderinfo date=''/>")},
    {"missing-attribute", report("cancelledsummary number='1' totals='1' a='S' b='1'"),
     report("cancelledsummary number='1' totals='1' a='S' b='1' c='2'")},
    {"attribute-order", report("cancelledsummary totals='1' totals='1' number='1' b='' c=''"),
     report("cancelledsummary totals='1' number='1'")},
    {"switch-off", document("PartialOrder", "<company/>"), document("Sold", "<company/>")},
    {"switch-off", document("Sold", "<orderinfo date='1' time='2'/>"),
     document("Sold", "<orderinfo date='1' time=''/>")},
    {"prints-nothing", document("AbstractOrder", soldItem), document("Sold", soldItem)},
    {"prints-nothing", document("AbstractOrderFiscal", "<total cash='1'/>"),
     document("AbstractOrderFiscal", "<total/>")},
};

const std::vector<Pair> paperFaults = {
    {"line-feed", headers("a&#10;J"), headers("a J")},
    {"line-feed", item("a&#13;", "1"), item("=a&#13;", "1")},
    {"line-feed", headers("a\nJ"), document("PartialOrder", "<printers name='' port='a\nJ'/>")},
    {"control-character", headers("a&#9;"), headers("a\xC2\xA0")},
    {"control-character", headers("\xC2\x9B"), headers("\xC3\x9B")},
    {"end-mark", headers("a&quot;@"), headers("a&quot; @")},
    {"unknown-entity", headers("caff&egrave;"), headers("caff&#232;")},
    {"address-part", customer("a,,b"), customer("a, ,b,,")},
    {"cut-description", item(QByteArray(20, 'x'), "1"), item(QByteArray(19, 'x'), "1")},
    {"cut-description", item("TOTALE 901234567 TOT", "1"), item("TOTALE 901234567 TO", "1")},
    {"cut-description", fiscal("123456", "1", "1", "1"), fiscal("12345", "1", "1", "1")},
    {"line-too-long", item("a", "123456.00"), item("a", "12345.00")},
    {"line-too-long", headers(QByteArray(41, 'x')), headers(QByteArray(40, 'x') + "  ")},
    {"line-too-long", report("prefiscalssummary number='1' total='1234567890123456'"),
     report("prefiscalssummary number='1' total='123456789012345'")},
    {"not-centred", company(34), company(33)},
    {"not-centred", company(38), company(39)},
    {"undecodable", item("caff\xE8", "1"),
     "<?xml version='1.0' encoding='ISO-8859-1'?>" + item("caff\xE8", "1")},
    {"mistaken-encoding", "<?xml version='1.0' encoding='ISO-8859-15'?>" + headers("caff\xC3\xA8"),
     "<?xml version='1.0' encoding='ISO-8859-15'?>" + headers("\xC3\xA8\xE8")},
    {"unknown-encoding", "<?xml version='1.0' encoding='latin-99'?>" + sold,
     "<?xml version='1.0' encoding='latin1'?>" + sold},
    {"no-character", headers("&#xD800;"), headers("&#xE8;")},
    {"character-width", headers("caffe\xCC\x80"), headers("caff\xC3\xA8 \xE2\x82\xAC")},
    {"character-width", headers("\xF0\x9F\x8D\x95"), headers("\xC2\xBD")},
    {"variant-quantity", document("PartialOrder", "<variant number='' name='' quantity='0,5'/>"),
     document("PartialOrder", "<variant number='' name='' quantity='0.5'/>")},
    {"fiscal-quote", fiscal("a&quot;@", "1", "1", "1"), fiscal("a&apos;", "1", "1", "1")},
    {"fiscal-number", fiscal("a", "1,5", "1", "1"), fiscal("a", "1.5", ".5", "1")},
    {"fiscal-number", fiscal("a", "1", "-1.50", "1"), fiscal("a", "1", "1.50", "1")},
    {"fiscal-number", fiscal("a", "1", "1.5.0", "1"), fiscal("a", "1", "150", "1")},
    {"fiscal-number", document("FullOrderFiscal", "<receipe name='a' price='1' department='1'/>"),
     document("AbstractOrderFiscal", "<receipe_type name='longer' price='1' department='1'/>")},
    {"fiscal-department", fiscal("a", "1", "1", ""), fiscal("a", "1", "1", "12")},
    {"fiscal-department", fiscal("a", "1", "1", "1.0"), fiscal("a", "1", "1", "10")},
};

TEST(RequestCheck, FindsEachFaultAndNothingBesideIt)
{
    const QByteArray columns = "quantityFieldWidth=3;priceFieldWidth=8;totalPriceFieldWidth=9;"
                               "paperWidth=40;printHeader=true;";
    support::configure("prefiscaldoc:{" + columns
                       + "printCustomer=true;printBillingAddress=true;};"
                         "solddoc:{"
                       + columns
                       + "printCompany=true;printDate=true;};"
                         "reportdoc:{"
                       + columns + "};doc:{" + columns
                       + "};"
                         "fiscaldoc:{descriptionWidth=5;};");
    // Which need a program of their own.
    Codes seen{"no-configuration", "not-in-encoding", "untranslated-type"};
    // What the short requests lack, unless that is the fault.
    const Codes lacking{"no-items", "no-total", "no-printer", "hidden-item"};
    const auto codesBeside = [&lacking](const char *fault, const QByteArray &request) {
        Codes codes = codesIn(request);
        std::erase_if(codes, [&](const std::string &code) {
            return code != fault && lacking.contains(code);
        });
        return codes;
    };
    for (const std::vector<Pair> &pairs : {requestFaults, paperFaults}) {
        for (const Pair &pair : pairs) {
            Codes codes = codesBeside(pair.code, pair.faulty);
            EXPECT_EQ(codes.erase(pair.code), 1)
                << pair.code << ' ' << pair.faulty.left(200).data();
            // What stands in the place of another attribute is told as well.
            EXPECT_TRUE(codes.empty() || QLatin1StringView(pair.code) == "attribute-order"_L1)
                << *codes.begin();
            EXPECT_EQ(codesBeside(pair.code, pair.fine), Codes{})
                << pair.code << ' ' << pair.fine.left(200).data();
            seen.insert(pair.code);
        }
    }
    for (const requestcheck::CodesOf &row : requestcheck::codes) {
        for (const std::string_view code : row.names)
            EXPECT_TRUE(seen.contains(std::string(code))) << code;
    }
}

TEST(RequestCheck, SaysWhatToDoAndWhere)
{
    struct Row
    {
        QByteArray request;
        qint64 line, column;
        const char *text;
    };
    const QByteArray start = "<p>\n<method name='printSold'/>\n";
    const Row rows[] = {
        {"<?xml version='1.0' standalone='maybe'?><p/>", 1, 39,
         "wrong value for standalone declaration: the print run stops here"},
        {document("AbstractOrderReceipt", "\n<receipe a=''/>"), 2, 1,
         "it is read in `printPartialOrder`, `printFullOrder`, `printFullOrderReceipt`, "
         "`printFullOrderInvoice` and 3 more (did you mean `receipe_type`?)"},
        {document("FullOrderInvoice", "\n<total price='1'/>"), 2, 1, "(did you mean `totals`?)"},
        {start + "<statement date=''/></p>", 3, 1, "it is read in `printStatementOfAccount` ["},
        {start + "<xyzzy a=''/></p>", 3, 1,
         ", which reads `receipe`, `orderinfo`, `delivery`, `invoice` and 6 more ["},
        {start + "<recipe a=''/></p>", 3, 1, "(did you mean `receipe`?)"},
        {start + "<logo name=''/></p>", 3, 7, "`logo` does not read `name`, nor any other ["},
        {start + "<receipt a=''/></p>", 3, 10, "does not read `a`, but `serialnumber` ["},
        {start + "<headers a='Bar & Grill'/></p>", 3, 17, "a bare `&` is written `&amp;`"},
        {start + "<headers a='Bar &amp Grill'/></p>", 3, 21, "a reference ends with `;`"},
        {start + "<headers a='<b'/></p>", 3, 13, "a bare `<` is written `&lt;`"},
        {start + "<headers a=b/></p>", 3, 12, "a value in quotes"},
        {start + "<headers>\n</p>", 4, 4, "`headers`, open since line 3, is not closed"},
        {start + "<logo/>", 3, 7, "`p`, open since line 1, is not closed"},
        {start + "<logo a='", 3, 9, "whose quote is missing"},
        {start + "</p><p/>", 3, 6, "behind the end of the root element"},
        {"\n<?xml version='1.0'?>" + start, 2, 6, "has to stand at the very beginning"},
        {"PK", 1, 1, "no element begins here"},
        {document("Sold", "\n<printers name='" + QByteArray(41, 'x') + "'/><headers/>"), 2, 11,
         "the printer's name has 41 characters, 1 more than the paper"},
        {document("Sold", "\n<printers name='" + QByteArray(37, 'x') + "'/><headers/>"), 2, 11,
         "too long to centre"},
        {document("Sold", "\n<company a='b' c='" + QByteArray(37, 'x') + "'/>"), 2, 16,
         "too long to centre"},
    };
    support::configure("solddoc:{paperWidth=40;printCompany=true;};");
    for (const Row &row : rows) {
        const QByteArray lines = tools::findingLines(u"r"_s, findingsIn(row.request)).toUtf8();
        const QByteArray place =
            "r:" + QByteArray::number(row.line) + ':' + QByteArray::number(row.column) + ": ";
        const qsizetype begin = lines.indexOf(place);
        EXPECT_TRUE(begin >= 0 && lines.mid(begin).split('\n')[0].contains(row.text))
            << row.request.data() << lines.data() << row.text;
    }
}

TEST(RequestCheck, PointsAtTagsAndAttributesInEveryEncoding)
{
    struct Row
    {
        const char *encoding;
        const char *request;
        qint64 line, column;
    };
    const QString head = u"<?xml version='1.0' encoding='%1'?><p><method name='printSold'/>"_s;
    const std::vector<Row> rows = {
        {"UTF-8", "\n <logo\n b='<'/>", 3, 5},
        {"UTF-8", "<!-- <a b='\"> -->\n\u00E8\u20AC\U0001D11E<a>", 2, 10},
        {"UTF-16", "<!-- <a b='\"> -->\n\u00E8\u20AC\U0001D11E<a>", 2, 4},
        {"ISO-8859-15", "\n\u00E8\u20AC<a>", 2, 3},
        {"UTF-8", "\n<printers name='\u00E8&x;'/>", 2, 19},
        {"UTF-8", "\r\n<logo\r\n xy\n = '>'/>", 3, 2},
        {"UTF-8", "\n<logo xmlns:a='/'  b=\"'\"/>", 2, 20},
        {"UTF-8", "\n<logo/><logo\tb='\u00E8'  /><!-- \n -->", 2, 14},
    };
    for (const Row &row : rows) {
        const QString text =
            head.arg(QLatin1StringView(row.encoding)) + QString::fromUtf8(row.request);
        const auto findings = findingsIn(QTextCodec::codecForName(row.encoding)->fromUnicode(text));
        ASSERT_FALSE(findings.empty()) << row.request;
        EXPECT_EQ(findings.front().at.begin.line, row.line) << row.request;
        EXPECT_EQ(findings.front().at.begin.column, row.column) << row.request;
    }
    const QByteArray far = QByteArray(100'000, '\n') + " <a/>";
    EXPECT_EQ(findingsIn(document("Sold", far)).front().at.begin.line, 100'001);
    const auto fromEntity =
        findingsIn("<!DOCTYPE p [<!ENTITY e \"<a/>\">]>\n" + document("Sold", "\n &e;"));
    EXPECT_EQ(fromEntity.front().at.begin.line, 3);
    EXPECT_EQ(fromEntity.front().at.begin.column, 2);
}

TEST(RequestCheck, KeepsAHundredOfACode)
{
    const auto findings =
        findingsIn(document("Sold", QByteArray("<a/><b/><c><logo/></c>").repeated(5'000)));
    ASSERT_EQ(findings.size(), 101);
    EXPECT_EQ(findings.back().text, u"9900 more like this");
    EXPECT_EQ(findings.back().code, "unknown-element"_L1);
}

/// The documents that a schema takes.
QStringList documentsIn(const QString &schema)
{
    QStringList names;
    for (const QString &part : schema.split(u"<value>"_s).sliced(1))
        names.append(part.section(u'<', 0, 0));
    return names;
}

TEST(RequestSchema, TakesEveryDocumentAndNoOther)
{
    QStringList all;
    for (qsizetype i = 0; i < qsizetype(documentMethods.size()); ++i) {
        all.append(documentMethods[size_t(i)].name);
        EXPECT_EQ(documentsIn(schema::requestSchema(i, false)), QStringList(all.back()));
    }
    EXPECT_EQ(documentsIn(schema::requestSchema(-1, false)), all);
}

/// What is found is refused where a schema can say it, and whatever is fine is valid.
TEST(RequestSchema, AgreesWithTheCheck)
{
    const support::Folder folder;
    const QString schemaFile = folder.path(u"schema.rng"_s);
    support::writeFile(schemaFile, schema::requestSchema(-1, false).toUtf8());
    QStringList words{u"--noout"_s, u"--huge"_s, u"--relaxng"_s, schemaFile};
    QStringList valid;
    QStringList invalid;
    const auto add = [&](const QByteArray &request, QStringList &list) {
        list.append(folder.path(QString::number(words.size())));
        words.append(list.back());
        support::writeFile(list.back(), request);
    };
    const QDir samples(support::sourceDir() + u"/samples"_s);
    for (const QString &name : samples.entryList({u"*.xml"_s}))
        add(support::readFile(samples.filePath(name)), valid);
    const Codes refused{"no-method",       "unknown-method",    "before-method",    "second-method",
                        "unknown-element", "unknown-attribute", "missing-attribute"};
    // A group's name, a setting and the number of attributes.
    const QByteArray unsayable[] = {"<reciepe>", "<orderinfo", "<cancelledsummary"};
    const auto isIn = [](const QByteArray &request) {
        return [&request](const QByteArray &word) { return request.contains(word); };
    };
    for (const std::vector<Pair> &pairs : {requestFaults, paperFaults}) {
        for (const Pair &pair : pairs) {
            if (!codesIn(pair.fine).contains("hidden-item")) // needs nothing else
                add(pair.fine, valid);
            if (refused.contains(pair.code) && std::ranges::none_of(unsayable, isIn(pair.faulty)))
                add(pair.faulty, invalid);
        }
    }
    const QByteArray lines = support::run(u"xmllint"_s, words, support::Home()).errors;
    for (const QString &file : valid)
        EXPECT_TRUE(lines.contains(file.toUtf8() + " validates\n"))
            << support::readFile(file).data();
    for (const QString &file : invalid)
        EXPECT_TRUE(lines.contains(file.toUtf8() + " fails to validate\n"))
            << support::readFile(file).data();
}

} // namespace
