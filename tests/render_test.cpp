// SPDX-License-Identifier: MIT
#include "tests/recordingdevice.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using support::RecordingDevice;

// What no request brings about; what requests do is in the golden files.

namespace {

QXmlAttributes attributes(std::initializer_list<std::pair<QString, QString>> pairs)
{
    QXmlAttributes atts;
    for (const auto &[name, value] : pairs)
        atts.append(name, {}, name, value);
    return atts;
}

TEST(RowLayout, LaysOutWhatNoDocumentAsksFor)
{
    RecordingDevice device;
    device.settings.quantityFieldWidth = 3;
    device.settings.totalPriceFieldWidth = 9;
    device.settings.paperWidth = 40;
    const std::pair<QString, QString> rows[] = {
        {u"qxdtDoubleLine"_s, u"2 x 7.50\nPizza..............................15.00"_s},
        {u"qxd"_s, u"  2 x Pizza............................."_s},
        {u"QDPT"_s, u""_s}};
    for (const auto &[layout, line] : rows)
        EXPECT_EQ(device.descriptionRow(u"2"_s, u"Pizza"_s, u"7.50"_s, u"15.00"_s, u'.', layout),
                  line);
}

TEST(Driver, TakesNoUnknownNames)
{
    RecordingDevice device;
    device.startElement({}, {}, u"method"_s, attributes({{u"name"_s, u"printFullOrder"_s}}));
    device.takeCalls();
    testing::internal::CaptureStdout();
    EXPECT_FALSE(
        device.startElement({}, {}, u"method"_s, attributes({{u"name"_s, u"printfullorder"_s}})));
    EXPECT_TRUE(device.startElement({}, {}, u"total"_s, {}));
    EXPECT_EQ(device.takeCalls(), "");
    EXPECT_EQ(device.documentPath(u"ORDER"_s), u"zentaro.doc."_s);
    EXPECT_EQ(device.documentPath(u"Bill"_s), u"zentaro.prefiscaldoc."_s);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "File Format Not Supported\nError into PrinterDriver::documentPath:  bill\n");
}

/// A device that takes the driver's members into its own hands.
class WilfulDevice : public CompanyPrinterDriver
{
public:
    explicit WilfulDevice(const QString &fileName)
        : CompanyPrinterDriver(fileName)
    {
    }
    void print(unsigned int indent, const QString &text) override
    {
        CompanyPrinterDriver::print(indent, text == "\"@\n"_L1 ? u"<\n"_s : text);
    }
    using CompanyPrinterDriver::currentMethod;
    using CompanyPrinterDriver::docPath;
};

TEST(Driver, HeedsADeviceThatDerivesFromIt)
{
    support::configure("doc:{printGeometry=true; topMargin=1; descriptionWidth=1;};"
                       "solddoc:{topMargin=2; descriptionWidth=2;};");
    const support::Folder folder;
    {
        WilfulDevice device(folder.path(u"out"_s));
        const QXmlAttributes item = attributes({{u"name"_s, u"na"_s}, {u"description"_s, u"d"_s}});
        device.startElement({}, {}, u"method"_s, attributes({{u"name"_s, u"printPartialOrder"_s}}));
        for (const QString &prefix : {u"zentaro.doc."_s, u"zentaro.solddoc."_s}) {
            device.docPath = prefix;
            device.currentMethod = u"printPartialOrder"_s;
            device.startElement({}, {}, u"geometry"_s, {});
            device.currentMethod = u"printFullOrderFiscal"_s;
            device.startElement({}, {}, u"receipe"_s, item);
        }
        for (const QString &method : {u"printSold"_s, u""_s, u"printFullOrder"_s}) {
            device.currentMethod = method;
            device.startElement({}, {}, u"total"_s, item);
            device.startElement({}, {}, u"receipe"_s, item);
        }
    }
    QByteArray printed = support::readFile(folder.path(u"out"_s));
    EXPECT_EQ(printed.replace("  ", QByteArray()).replace("..", QByteArray()),
              "\nj\n\"<\n\"n\"*HR\r\n\"<\n\"<\n\"na\"*HR\r\n\" x d<\n\"<\n\" TOTAL<\n"
              "\"Num DescriptionPriceAmount<\n\" na.<\n");
}

/// The print file of a fiscal document.
template <typename Write>
QByteArray fiscal(Write write)
{
    const support::Folder folder;
    {
        CompanyPrinterDriver device(folder.path(u"out"_s));
        device.startElement({}, {}, u"method"_s,
                            attributes({{u"name"_s, u"printFullOrderFiscal"_s}}));
        write(device);
    }
    return support::readFile(folder.path(u"out"_s));
}

TEST(Device, WritesFiscalCommands)
{
    EXPECT_EQ(fiscal([](auto &device) {
                  device.printRowFiscal(u"1"_s, u"2.5"_s, u"P\"x"_s, u"7.50"_s, u"-1.50"_s);
                  device.printRowFiscal(u"1"_s, u"2"_s, u"P"_s, u"7.50"_s, u"2-"_s);
                  device.printRowFiscal(u""_s, u""_s, u""_s, u""_s, u""_s);
              }),
              "\n\"P\"x\"2.5*7,50H1R-1,50*5M\r\n\"P\"2*7,50H1R2-*1M\r\n\"\"*HR*1M\r\n");
    EXPECT_EQ(fiscal([](auto &device) {
                  const auto payments = attributes({{u"ticket"_s, u"0.50"_s},
                                                    {u"cheque"_s, u"3"_s},
                                                    {u"creditCard"_s, u"-2.00"_s},
                                                    {u"cash"_s, u" 10.00"_s},
                                                    {u"discountRate"_s, u"5.5"_s}});
                  device.printRowFiscal(u"total"_s, payments);
                  device.printRowFiscal(u"totals"_s, payments);
                  for (const QString &none : u" 0 0.00 -0 12abc 1.2.3 inf nan"_s.split(u' '))
                      device.printRowFiscal(u"totals"_s, attributes({{u"cash"_s, none}}));
              }),
              "\n=5,5*2M\r\n 10,00H1T\r\n-2,00H3T\r\n3H2T\r\n0,50H5T\r\n");
    EXPECT_EQ(fiscal([](auto &device) { // a line lacks its opening quote until the next one
                  device.println(u"a"_s);
                  device.println(u"b"_s);
                  device.print(1, u"never ended"_s);
              }),
              "\na\"@\n\"b\"@\n");
}

} // namespace
