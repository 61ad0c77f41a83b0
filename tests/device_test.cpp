// SPDX-License-Identifier: MIT
#include "tests/recordingdevice.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using support::attributes;

namespace {

/// A document written by the receipt printer; `written` is the print file when it is finished.
struct Written
{
    template <typename Write>
    explicit Written(const char *method, Write write)
    {
        support::configure("");
        const support::Folder folder;
        {
            CompanyPrinterDriver device(folder.path(u"out"_s));
            if (method)
                device.startElement({}, {}, u"method"_s, attributes({{"name", method}}));
            write(device);
        }
        file = support::readFile(folder.path(u"out"_s));
    }
    QByteArray file;
};

TEST(Device, FramesAndCentresLines)
{
    const auto lines = [](auto write) {
        return Written("printPartialOrder",
                       [&](CompanyPrinterDriver &device) {
                           write(device);
                           device.endDocument();
                       })
            .file;
    };
    EXPECT_EQ(lines([](auto &) {}), "\nj\nJ\n");
    EXPECT_EQ(lines([](auto &device) { device.print(1, u"never ended"_s); }), "\nj\nJ\n");
    EXPECT_EQ(lines([](auto &device) {
                  device.print(1, u"Date:"_s);
                  device.println(2, u"today"_s);
                  device.println(u""_s);
              }),
              "\nj\n\" Date:  today\"@\n\"\"@\nJ\n");
    EXPECT_EQ(lines([](auto &device) {
                  device.print(0, u"TOTALE TOTALE Totale TOT"_s);
                  device.println(0, u"ALE"_s);
              }),
              "\nj\n\"SOMMA SOMMA Totale TOTALE\"@\nJ\n");
    EXPECT_EQ(lines([](auto &device) {
                  device.setCenterJustify();
                  device.println(2, u"title"_s);
                  device.println(u""_s);
                  device.println(QString(34, u'x')); // 38 characters with the frame: no pad left
                  device.println(QString(33, u'x'));
                  device.println(QString(500, u'x'));
                  device.setCharSize(3);
                  device.println(u"left"_s);
              }),
              "\nj\n\"" + QByteArray(14, ' ') + "  title\"@\n\"" + QByteArray(17, ' ') + "\"@\n\""
                  + QByteArray(34, 'x') + "\"@\n\" " + QByteArray(33, 'x') + "\"@\n\""
                  + QByteArray(500, 'x') + "\"@\n\"left\"@\nJ\n");
}

TEST(Device, WritesFiscalCommands)
{
    const auto commands = [](auto write) {
        return Written("printFullOrderFiscal",
                       [&](CompanyPrinterDriver &device) {
                           write(device);
                           device.endDocument();
                       })
            .file;
    };
    EXPECT_EQ(commands([](auto &device) {
                  device.printRowFiscal(u"1"_s, u"2"_s, u"Pizza TOTALE"_s, u"7.50"_s);
                  device.printRowFiscal(u"1"_s, u"2.5"_s, u"P\"x"_s, u"7.50"_s, u"-1.50"_s);
                  device.printRowFiscal(u"1"_s, u"2"_s, u"P"_s, u"7.50"_s, u"2"_s);
                  device.printRowFiscal(u""_s, u""_s, u""_s, u""_s, u""_s);
              }),
              "\n\"Pizza TOTALE\"2*7,50H1R\r\n\"P\"x\"2.5*7,50H1R-1,50*5M\r\n"
              "\"P\"2*7,50H1R2*1M\r\n\"\"*HR*1M\r\n1T\n");
    EXPECT_EQ(commands([](auto &device) { // the line lacks its opening quote until the next one
                  device.println(u"a"_s);
                  device.println(u"b"_s);
              }),
              "\na\"@\n\"b\"@\n1T\n");
    EXPECT_EQ(commands([](auto &device) {
                  device.printRowFiscal(u"total"_s, attributes({{"cash", "5"}}));
                  device.printRowFiscal(u"totals"_s, attributes({{"ticket", "0.50"},
                                                                 {"cheque", "3"},
                                                                 {"creditCard", "-2.00"},
                                                                 {"cash", " 10.00"},
                                                                 {"discountRate", "5.5"}}));
                  for (const char *none : {"", "0", "0.00", "-0", "12abc", "1.2.3", "inf", "nan"})
                      device.printRowFiscal(u"totals"_s, attributes({{"cash", none}}));
              }),
              "\n=5,5*2M\r\n 10,00H1T\r\n-2,00H3T\r\n3H2T\r\n0,50H5T\r\n1T\n");
}

TEST(Device, CutsFiscalNamesToTheirWidth)
{
    const auto printedName = [](const QByteArray &width) {
        support::RecordingDevice device;
        support::configure("fiscaldoc:{descriptionWidth=" + width + ";};");
        device.method("printFullOrderFiscal");
        const auto atts = attributes(
            {{"name", "Gnocco \U0001F355 fritto con salumi della casa in terrina calda"}});
        return device.element("receipe", atts).section(u'/', 2, 2);
    };
    EXPECT_EQ(printedName("6"), u"Gnocco"_s);
    EXPECT_EQ(printedName("8"), u"Gnocco "_s); // not half of a surrogate pair
    EXPECT_EQ(printedName("9"), u"Gnocco \U0001F355"_s);
    EXPECT_EQ(printedName("0").size(), 48); // the device's width, and so for bad text
    EXPECT_EQ(printedName("x").size(), 48);
    EXPECT_EQ(printedName("-3").size(), 55);
}

TEST(Device, OpensAndClosesSections)
{
    const auto nothing = [](CompanyPrinterDriver &) {};
    EXPECT_EQ(Written(nullptr, nothing).file, "");
    EXPECT_EQ(Written(nullptr, [](CompanyPrinterDriver &device) { device.endDocument(); }).file,
              "J\n");
    const Written second("printFullOrderFiscal", [](CompanyPrinterDriver &device) {
        device.startElement({}, {}, u"method"_s, attributes({{"name", "printPartialOrder"}}));
        device.println(u"a"_s);
        device.endDocument();
    });
    EXPECT_EQ(second.file, "\n\nj\n\"a\"@\nJ\n");
}

TEST(Device, WritesNothingWithoutAFile)
{
    support::configure("");
    testing::internal::CaptureStdout();
    CompanyPrinterDriver device(u"/nonexistent/print.out"_s);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "PrintManager::printAbstractOrder(...): Unable To Open File\n");
    device.startElement({}, {}, u"method"_s, attributes({{"name", "printFullOrderFiscal"}}));
    device.startElement({}, {}, u"receipe"_s, {});
    device.println(u"lost"_s);
    EXPECT_TRUE(device.endDocument());
}

} // namespace
