// SPDX-License-Identifier: MIT
#include "tests/recordingdevice.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using support::attributes;
using support::RecordingDevice;

namespace {

/// A device in the middle of a document, on paper of 40 columns unless said otherwise.
RecordingDevice &deviceFor(const char *method, const QByteArray &paperWidth = "40")
{
    static std::unique_ptr<RecordingDevice> device;
    const QByteArray settings = "quantityFieldWidth=3; priceFieldWidth=8; totalPriceFieldWidth=9;"
                                "printCompany=true; paperWidth="
                                + paperWidth + ";";
    support::configure("reportdoc:{" + settings + "}; solddoc:{" + settings + "};");
    device = std::make_unique<RecordingDevice>();
    device->method(method);
    return *device;
}

QString title(const QString &text)
{
    return u"bold\ncenter\n||\n|"_s + text + u"|\nsize\n||\n"_s;
}

TEST(Report, CallsTheDeviceInOrder)
{
    const QString rule = u"|========================================|\n"_s;
    const struct
    {
        const char *element;
        QXmlAttributes atts;
        QString calls;
    } rows[] = {
        {"date", attributes({{"begindate", "1"}, {"enddate", "2"}}),
         u"bold\ncenter\n||\n|SUMMARIES|\n||\nsize\n+0|BeginDate: |\n|1|\n+0|EndDate: |\n|2|"_s},
        {"prefiscalssummary", attributes({{"number", "12"}, {"total", "1250.00"}}),
         title(u"PREFISCAL SUMMARY"_s)
             + u"+0|Number...................|\n|12|\n+0|TOTAL....................|\n|1250.00|"_s},
        {"receiptssummary",
         attributes({{"firstserial", "101"}, {"lastserial", "112"}, {"cash", "800.00"}}),
         title(u"RECEIPTS SUMMARY"_s)
             + u"+0|Number...................|\n||\n+0|Serials..................|\n+0|101|\n"
               "+0| - |\n|112|\n|Amount not paid: |\n|Cash: 800.00|\n|Credit Card: |\n"
               "|Bancomat: |\n|Other: |\n+0|TOTAL....................|\n||\n||\n"_s
             + rule + u"|TAXRATE    TAXABLE        TAX     AMOUNT|"_s},
        {"taxrate_item",
         attributes(
             {{"taxrate", "10"}, {"taxable", "90.91"}, {"tax", "9.09"}, {"amount", "100.00"}}),
         u"|    10%      90.91       9.09     100.00 |"_s},
        {"invoicessummary", attributes({{"firstserial", "1"}, {"tax", "3"}, {"total", "4"}}),
         rule + u"||\n"_s + title(u"INVOICES SUMMARY"_s)
             + u"+0|Number...................|\n||\n+0|Serials..................|\n+0|1|\n"
               "+0| - "
               "|\n||\n+0|Taxable..................|\n||\n+0|Tax......................|\n|3|\n"
               "+0|TOTAL....................|\n|4|"_s},
        // The rest are attributes by position, and an incomplete row is filled up.
        {"cancelledsummary",
         attributes({{"totals", "70.00"},
                     {"number", "2"},
                     {"total", "1042"},
                     {"x", "35.00"},
                     {"y", "10"},
                     {"z", "a serial longer than its column"}}),
         title(u"CANCELLED DOC SUMMARY"_s)
             + u"+0|Number...................|\n|2|\n+0|TOTAL....................|\n|70.00|\n"
               "bold\n||\n+0|SERIAL    |\n+0|TOTAL      |\n|TAXRATE   |\n"
               "+0|1042      |\n+0|35.00      |\n|10        |\n"
               "+0|a serial longer than its column|\n+0|           |\n|          |"_s},
        {"company", attributes({{"name", "A"}}), u"size\ncenter\n|A|\nsize\n"_s + rule.trimmed()},
        {"Date", {}, u""_s},
        {"receipe", {}, u""_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(deviceFor("printReport").element(row.element, row.atts), row.calls)
            << row.element;
}

TEST(Report, KeepsLabelsWholeOnNarrowPaper)
{
    for (const char *width : {"1", "15", "20", "-5"}) {
        EXPECT_TRUE(deviceFor("printReport", width)
                        .element("prefiscalssummary")
                        .contains(u"\n+0|Number|\n"_s))
            << width;
    }
    EXPECT_TRUE(
        deviceFor("printReport", "22").element("prefiscalssummary").contains(u"\n+0|Number.|\n"_s));
}

TEST(Sold, PrintsItemsInBold)
{
    const auto item =
        attributes({{"quantity", "2"}, {"description", "Pizza Margherita"}, {"amount", "15.00"}});
    RecordingDevice &device = deviceFor("printSold");
    EXPECT_EQ(device.element("receipe", item),
              u"bold\n|  2 x Pizza Margherita.........    15.00|\nsize"_s);
    EXPECT_EQ(device.element("recipe", item), u""_s);
    EXPECT_EQ(device.element("logo"), u"logo"_s);
}

TEST(Statement, PrintsMovementsWithoutEmphasis)
{
    RecordingDevice &device = deviceFor("printStatementOfAccount");
    EXPECT_EQ(device.element("statement_list"),
              u"bold\n|Date           Description     Amount|\nreset"_s);
    const std::pair<QXmlAttributes, QString> rows[] = {
        {attributes({{"date", "01/02/2009"}, {"type", "Payment"}, {"amount", "50.00"}}),
         u"|01/02/2009:    Payment..........50.00|"_s},
        {attributes({{"date", "01/02/2009 12h"}, {"type", "Opening balance"}, {"amount", "50.00"}}),
         u"|01/02/2009 12h: Opening balanc...50.00|"_s},
        {attributes({{"date", "1"}}), u"|1:             ......................|"_s},
    };
    for (const auto &[atts, line] : rows)
        EXPECT_EQ(device.element("statement", atts), line);
    EXPECT_EQ(device.element("logo"), u"logo"_s);
    EXPECT_EQ(device.element("receipe"), u""_s);
}

} // namespace
