// SPDX-License-Identifier: MIT
#include "render/documentmethod.h"
#include "render/rowlayout.h"
#include "tests/recordingdevice.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using support::attributes;
using support::configure;
using support::RecordingDevice;

namespace {

constexpr char columns40[] =
    "quantityFieldWidth=3; priceFieldWidth=8; totalPriceFieldWidth=9; paperWidth=40;";

TEST(RowLayout, LaysOutTheSixLayouts)
{
    configure("doc:{" + QByteArray(columns40) + "};");
    RecordingDevice device;
    device.method("printPartialOrder");
    const struct
    {
        QString layout;
        char16_t fill;
        QString a1, a2, a3, a4, line;
    } rows[] = {
        {u"qdpt"_s, u'.', u"2"_s, u"Pizza Margherita"_s, u"7.50"_s, u"15.00"_s,
         u"  2 Pizza Margherita.......7.50    15.00"_s},
        {u"qdpt"_s, u' ', u"Qty"_s, u"Description"_s, u"Price"_s, u"Total"_s,
         u"Qty Description           Price    Total"_s},
        {u"qxdpt"_s, u'.', u"2"_s, u"Pizza Margherita"_s, u"7.50"_s, u"15.00"_s,
         u"  2 x Pizza Margherita.....7.50    15.00"_s},
        {u"qxdpt"_s, u'.', u"12"_s, u"Spaghetti alla carbonara grande"_s, u"9.00"_s, u"108.00"_s,
         u" 12 x Spaghetti alla ca....9.00   108.00"_s},
        {u"qxdtDoubleLine"_s, u'.', u"2"_s, u"Pizza Margherita"_s, u"7.50"_s, u"15.00"_s,
         u"2 x 7.50\nPizza Margherita...................15.00"_s},
        {u"qxd"_s,
         u' ',
         u"2"_s,
         u"Pizza Margherita"_s,
         {},
         {},
         u"  2 x Pizza Margherita                  "_s},
        {u"qd"_s,
         u'.',
         u"2"_s,
         u"Pizza Margherita"_s,
         {},
         {},
         u"  2 Pizza Margherita                  "_s},
        {u"date-amount-type"_s,
         u'.',
         u"01/02/2009"_s,
         u"Payment"_s,
         u"50.00"_s,
         {},
         u"01/02/2009     Payment..........50.00"_s},
        {u"QDPT"_s, u'.', u"2"_s, u"Pizza"_s, u"7.50"_s, u"15.00"_s, u""_s},
        // What is too long for its column is cut in the description only.
        {u"qdpt"_s, u'.', u"12345"_s, u"exactly-19-chars-xx"_s, u"123456789"_s, u"1234567890"_s,
         u"12345 exactly-19-chars-xx1234567891234567890"_s},
        {u"qdpt"_s, u'.', {}, {}, {}, {}, u"    ...........................         "_s},
        {u"date-amount-type"_s,
         u'.',
         u"date of 17 chars."_s,
         u"Fifteen letters"_s,
         {},
         {},
         u"date of 17 chars.Fifteen letter........"_s},
        // The cut falls into a surrogate pair: its place is filled.
        {u"qdpt"_s,
         u'.',
         u"1"_s,
         u"eighteen letters..\U0001F355"_s,
         u"7.50"_s,
         {},
         u"  1 eighteen letters.......7.50         "_s},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(device.descriptionRow(row.a1, row.a2, row.a3, row.a4, row.fill, row.layout),
                  row.line)
            << row.layout.toStdString();
    }
}

TEST(RowLayout, SurvivesWidthsThatDoNotFit)
{
    RecordingDevice device;
    device.settings.paperWidth = 10;
    device.settings.quantityFieldWidth = 2;
    device.settings.totalPriceFieldWidth = 20; // the description's width is negative: kept whole
    EXPECT_EQ(device.descriptionRow(u"1"_s, u"Pizza"_s, u"7.50"_s, u"15.00"_s, u'.', u"qdpt"_s),
              u" 1 Pizza7.50               15.00"_s);
    device.settings.totalPriceFieldWidth = 7; // it is zero
    EXPECT_EQ(device.descriptionRow(u"1"_s, u"Pizza"_s, u"7"_s, u"5"_s, u'.', u"qdpt"_s),
              u" 1 7      5"_s);
    constexpr int huge = std::numeric_limits<int>::max();
    device.settings.quantityFieldWidth = -huge;
    device.settings.priceFieldWidth = -huge;
    device.settings.totalPriceFieldWidth = 0;
    device.settings.paperWidth = huge;
    const QString line = device.descriptionRow(u"1"_s, u"a"_s, u"b"_s, {}, u'.', u"qdpt"_s);
    EXPECT_EQ(line.size(), 2 + rowlayout::MaxPaddedWidth + 1);
    device.settings.paperWidth = -1;
    device.printSeparatorLine();
    EXPECT_EQ(device.takeCalls(), u"||"_s);
}

TEST(Driver, ChoosesTheMethodAndItsSettings)
{
    configure("doc:{paperWidth=11;}; prefiscaldoc:{paperWidth=12;}; receiptdoc:{paperWidth=13;};"
              "invoicedoc:{paperWidth=14;}; deliverydoc:{paperWidth=15;};"
              "fiscaldoc:{paperWidth=16;}; reportdoc:{paperWidth=17;}; solddoc:{paperWidth=18;};");
    const struct
    {
        const char *method;
        int paperWidth;
        bool duplicate;
    } rows[] = {
        {"printPartialOrder", 11, false},
        {"printFullOrder", 12, false},
        {"printFullOrderReceipt", 13, false},
        {"printFullOrderInvoice", 14, true},
        {"printFullOrderDelivery", 15, true},
        {"printFullOrderFiscal", 16, false},
        {"printAbstractOrder", 11, false},
        {"printAbstractOrderReceipt", 13, false},
        {"printAbstractOrderInvoice", 14, true},
        {"printAbstractOrderFiscal", 16, false},
        {"printReport", 17, false},
        {"printSold", 18, false},
        {"printStatementOfAccount", 17, false},
    };
    RecordingDevice device; // one for all: the duplicate flag carries over where it is unchanged
    EXPECT_EQ(device.element("receipe"), u""_s);
    for (const auto &row : rows) {
        EXPECT_EQ(device.method(row.method), u"start"_s);
        EXPECT_TRUE(device.accepted);
        EXPECT_EQ(device.currentMethod, QString::fromLatin1(row.method));
        EXPECT_EQ(device.settings.paperWidth, row.paperWidth) << row.method;
        EXPECT_EQ(device.printDuplicate(), row.duplicate) << row.method;
    }
    testing::internal::CaptureStdout();
    EXPECT_EQ(device.method("printfullorder"), u""_s);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "File Format Not Supported\n");
    EXPECT_FALSE(device.accepted);
    EXPECT_EQ(device.currentMethod, u""_s);
    EXPECT_EQ(device.element("total"), u""_s);
}

TEST(Driver, ReadsSettingsAsTextSaysThem)
{
    configure("doc:{quantityFieldWidth=\" +4 \"; priceFieldWidth=1e1; totalPriceFieldWidth=40.0;"
              "paperWidth=99999999999; paperRows=-7; printDate=true; printTime=True; printNote=1;"
              "printTable=\" true\"; openCashDrawer=true;};");
    RecordingDevice device;
    device.loadValues(u"ORDER"_s);
    EXPECT_EQ(device.settings.quantityFieldWidth, 4);
    EXPECT_EQ(device.settings.priceFieldWidth, 0);
    EXPECT_EQ(device.settings.totalPriceFieldWidth, 0);
    EXPECT_EQ(device.settings.paperWidth, 48); // bad text: the device's own width
    EXPECT_EQ(device.settings.paperRows, -7);
    const DocumentSettings &settings = device.settings;
    EXPECT_TRUE(settings.printDate && settings.openCashDrawer);
    EXPECT_FALSE(settings.printTime || settings.printNote || settings.printTable);

    testing::internal::CaptureStdout();
    EXPECT_EQ(device.documentPath(u"Bill"_s), u"zentaro.prefiscaldoc."_s);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error into PrinterDriver::documentPath:  bill\n");
}

TEST(Driver, KeepsThePrinterAndTheFirstOfTwoAttributes)
{
    configure("");
    RecordingDevice device;
    EXPECT_TRUE(device.startDocument());
    EXPECT_EQ(device.takeCalls(), u"reset"_s);
    device.method("printPartialOrder");
    EXPECT_EQ(device.element("printers", attributes({{"name", "first"},
                                                     {"name", "second"},
                                                     {"charsize", "c"},
                                                     {"ipaddress", "i"},
                                                     {"port", "p"}})),
              u"init"_s);
    const QStringList kept{device.printerInfo, device.charsize, device.ipaddress, device.port};
    EXPECT_EQ(kept, QStringList({u"first"_s, u"c"_s, u"i"_s, u"p"_s}));
}

const QString rule = u"|========================================|"_s;

/// What each element of the top makes the driver ask of its device, with everything switched on and
/// with everything switched off.
TEST(Documents, PrintTheTopUnderItsSwitches)
{
    const QByteArray on = columns40
                          + QByteArray("printGeometry=true; topMargin=2; printHeader=true;"
                                       "printCompany=true; printDate=true; printCredit=true;"
                                       "printCustomer=true; printBillingAddress=true;"
                                       "printTelephone=true; printFiscalCode=true;");
    configure("prefiscaldoc:{" + on
              + "}; doc:{paperWidth=40;};"
                "receiptdoc:{paperWidth=40; printCustomer=true;};");
    const QXmlAttributes customer = attributes({{"name", "Zo\u00EB"},
                                                {"billingaddress", "Via A, 1,  ,B,,C"},
                                                {"deliveryaddress", "X"},
                                                {"telephone", "5"}});
    const struct
    {
        const char *element;
        QXmlAttributes atts;
        QString on, off;
    } rows[] = {
        {"geometry", {}, u"||\n||"_s, u""_s},
        {"headers", attributes({{"b", "one"}, {"a", "two"}}),
         u"|one|\n|two|\n"_s + rule + u"\ncenter\n||\n"_s + rule, u"center\n||\n"_s + rule},
        {"logo", {}, u"logo"_s, u"logo"_s},
        {"company", attributes({{"b", "one"}}), u"size\ncenter\n|one|\nsize\n"_s + rule, u""_s},
        {"orderinfo", attributes({{"date", "d"}, {"time", "t"}, {"credit", "c"}}),
         u"size\n+1|Date:|\n1|d|\n+1|Credit:|\n1|c|\n"_s + rule, u"size\n"_s + rule},
        {"customer", customer,
         u"|CUSTOMER|\n1|Zo\u00EB|\n1|Via A|\n1|1|\n1||\n1|B|\n+1|Telephone:|\n1|5|\n"
         "+1|Fiscal Code:|\n1||\n"_s
             + rule,
         u""_s},
    };
    for (const auto &row : rows) {
        RecordingDevice device;
        device.method("printFullOrder");
        EXPECT_EQ(device.element(row.element, row.atts), row.on) << row.element;
        device.method("printPartialOrder");
        EXPECT_EQ(device.element(row.element, row.atts), row.off) << row.element;
    }
    RecordingDevice receipt;
    receipt.method("printFullOrderReceipt");
    EXPECT_EQ(receipt.element("customer", customer), u"|CUSTOMER|\n1|Zo\u00EB|\n"_s + rule);
}

/// How the documents treat their elements, where the print file alone does not show it.
TEST(Documents, TellTheirElementsApart)
{
    const QByteArray groups = QByteArray(columns40) + "printCustomer=true;";
    configure("doc:{" + groups + "}; receiptdoc:{" + groups + "}; invoicedoc:{" + groups
              + "}; prefiscaldoc:{" + groups + "};");
    const QXmlAttributes item = attributes({{"department", "1"},
                                            {"number", "2"},
                                            {"name", "T\u00E8"},
                                            {"price", "1.50"},
                                            {"totalPrice", "3.00"}});
    const QXmlAttributes price = attributes({{"price", "9.00"}});
    const struct
    {
        const char *method, *element;
        QXmlAttributes atts;
        QString calls;
    } rows[] = {
        {"printFullOrder", "receipe", item,
         u"bold\n|Num Description           Price   Amount|\nsize\n"
         "|  2 T\u00E8.....................1.50     3.00|"_s},
        {"printFullOrder", "receipe", attributes({{"name", "=Note"}}), u""_s},
        {"printFullOrder", "total", price,
         u"||\nbold\n|    TOTAL......................     9.00|"_s},
        {"printFullOrder", "notPaid", price, u""_s},
        {"printPartialOrder", "receipe", item,
         u"size\n|  2 T\u00E8                                |"_s},
        {"printPartialOrder", "otherreceipe", item,
         u"size 1\n|  2 T\u00E8                                |"_s},
        {"printPartialOrder", "total", price, u""_s},
        {"printFullOrderReceipt", "total", price,
         u"||\n|    TOTAL......................     9.00|"_s},
        {"printFullOrderReceipt", "variant", item, u""_s},
        {"printFullOrderReceipt", "totals", price, u""_s},
        {"printFullOrderInvoice", "totals", attributes({{"tax", "1.00"}}),
         u"bold\n||\n|    Taxable....................         |\n"
         "|    TaxRate....................         |\n"
         "|    Tax........................     1.00|\n"
         "|    TOTAL......................         |\nsize"_s},
        {"printFullOrderInvoice", "notPaid", price, u""_s},
        {"printFullOrderInvoice", "total", price, u""_s},
        {"printFullOrderFiscal", "total", price, u"payments of total"_s},
        {"printFullOrderFiscal", "totals", price, u""_s},
        {"printFullOrderFiscal", "logo", {}, u""_s},
        {"printAbstractOrder", "logo", {}, u""_s},
        {"printAbstractOrderReceipt", "customer", item, u""_s},
        {"printAbstractOrderReceipt", "receipe", item, u""_s},
        {"printAbstractOrderFiscal", "receipe_type", item, u"1/1/T\u00E8/1.50"_s},
        {"printAbstractOrderFiscal", "receipe", item, u""_s},
        {"printAbstractOrderFiscal", "total", price, u"payments of total"_s},
    };
    for (const auto &row : rows) {
        RecordingDevice device;
        device.method(row.method);
        EXPECT_EQ(device.element(row.element, row.atts), row.calls)
            << row.method << ' ' << row.element;
    }
}

TEST(Documents, KeepStateFromOneElementToTheNext)
{
    configure("receiptdoc:{printCredit=true;}; prefiscaldoc:{printCredit=false;};");
    RecordingDevice device;
    device.method("printFullOrderReceipt");
    device.element("printers", attributes({{"name", "P"}}));
    EXPECT_TRUE(device.element("headers").startsWith(u"center\n|P|\n"_s)); // without its switch
    device.element("orderinfo", attributes({{"credit", "3"}}));
    EXPECT_EQ(device.credit, u"3"_s);
    EXPECT_TRUE(device.element("receipe").startsWith(u"bold"_s));
    EXPECT_FALSE(device.element("receipe").startsWith(u"bold"_s)); // the titles stand only once
    EXPECT_FALSE(device.oneTime());
    device.method("printFullOrder");
    device.element("orderinfo", attributes({{"credit", "4"}}));
    EXPECT_EQ(device.credit, u"3"_s);                              // not printed, not kept
    EXPECT_FALSE(device.element("receipe").startsWith(u"bold"_s)); // nor in a second section

    RecordingDevice other;
    EXPECT_TRUE(other.oneTime());
    other.method("printFullOrderReceipt");
    EXPECT_FALSE(other.element("receipe").startsWith(u"bold"_s)); // the latch is shared
}

TEST(Documents, SignVariantsByTheirQuantity)
{
    configure("");
    RecordingDevice device;
    device.method("printFullOrder");
    const std::pair<const char *, QString> rows[] = {
        {"-1", u"-"_s},  {"0", u"-"_s},   {"", u"-"_s},    {"x", u"-"_s},
        {"nan", u"-"_s}, {"inf", u"-"_s}, {"1", u"+"_s},   {"1.0", u"+"_s},
        {" 1 ", u"+"_s}, {"2", u"2"_s},   {"-2", u"-2"_s}, {"0.5", u"0.5"_s}};
    for (const auto &[quantity, sign] : rows) {
        EXPECT_TRUE(device.element("variant", attributes({{"quantity", quantity}, {"name", "Oil"}}))
                        .contains(sign + u" Oil"_s))
            << quantity;
    }
}

TEST(Documents, PrintAMarginWithinReason)
{
    const std::pair<const char *, qsizetype> rows[] = {
        {"3", 3}, {"-1", 0}, {"", 0}, {"x", 0}, {"2000000000", 1000}};
    for (const auto &[margin, lines] : rows) {
        configure(QByteArray("doc:{printGeometry=true; topMargin=") + margin + ";};");
        RecordingDevice device;
        device.method("printPartialOrder");
        EXPECT_EQ(device.element("geometry").count(u"||"), lines) << margin;
    }
}

} // namespace
