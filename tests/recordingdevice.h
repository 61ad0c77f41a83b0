// SPDX-License-Identifier: MIT
#pragma once

#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "render/companyprinterdriver.h"
#include "tests/support.h"

#include <utility>

namespace support {

/// Gives the process's configuration another text: groups below "zentaro", as
/// `doc:{printDate=true;};`.
inline void configure(const QByteArray &groups)
{
    static const Home home("");
    writeFile(home.configurationPath(), "zentaro:{" + groups + "};");
    SyncSingleton<ZTConfiguration>::instance()->readFile(home.configurationPath(),
                                                         QStringLiteral("cfg"));
}

/// Notes what the driver asks of its device, one call a line, with what the driver keeps for it;
/// printed texts stand between bars. Its paper is 48 characters wide.
class RecordingDevice : public PrinterDriver
{
public:
    RecordingDevice()
        : PrinterDriver(QStringLiteral("/dev/null"), false)
    {
    }

    /// The calls since it was last asked.
    QByteArray takeCalls() { return std::exchange(calls, {}); }

    unsigned int getPaperWidth() override { return 48; }
    void reset() override { note("reset"); }
    void setBold() override { note("bold"); }
    void setCharSize() override { note("size"); }
    void setCharSize(int size) override { note("size " + QByteArray::number(size)); }
    void setCenterJustify() override { note("center"); }
    void fullCut() override { note("cut"); }
    void generatePulse() override { note("pulse"); }
    void startSection() override
    {
        note(QStringLiteral("start %1, paper %2x%3, duplicate %4, drawer %5, credit %6")
                 .arg(currentMethod)
                 .arg(settings.paperWidth)
                 .arg(settings.paperRows)
                 .arg(printDuplicate())
                 .arg(settings.openCashDrawer)
                 .arg(credit)
                 .toUtf8());
    }
    void endSection() override { note("end, credit " + credit.toUtf8()); }
    void initPrinter() override
    {
        note(QStringList{printerInfo, charsize, ipaddress, port}.join(u'/').toUtf8());
    }
    void print(unsigned int indent, const QString &text) override
    {
        note("+" + QByteArray::number(indent) + "|" + text.toUtf8() + "|");
    }
    void println(unsigned int indent, const QString &text) override
    {
        note(QByteArray::number(indent) + "|" + text.toUtf8() + "|");
    }
    void println(const QString &text) override { note("|" + text.toUtf8() + "|"); }
    void printRowFiscal(const QString &name, const QXmlAttributes &) override
    {
        note("payments of " + name.toUtf8());
    }
    void printRowFiscal(const QString &department, const QString &quantity,
                        const QString &description, const QString &price) override
    {
        note(QStringList{department, quantity, description, price}.join(u'/').toUtf8());
    }
    void printLogo() override { note("logo"); }

    using PrinterDriver::settings;

private:
    void note(const QByteArray &call) { calls += call + '\n'; }

    QByteArray calls;
};

} // namespace support
