// SPDX-License-Identifier: MIT
#pragma once

#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "render/companyprinterdriver.h"
#include "tests/support.h"

#include <QXmlAttributes>

#include <utility>

namespace support {

/// Gives the process's configuration another text: groups below "zentaro", as
/// `doc:{printDate=true;};`.
inline void configure(const QByteArray &groups)
{
    static const Home home("");
    writeFile(home.path(QStringLiteral("test.conf")), "zentaro:{" + groups + "};");
    SyncSingleton<ZTConfiguration>::instance()->readFile(home.path(QStringLiteral("test.conf")),
                                                         QStringLiteral("cfg"));
}

/// Attributes in the given order.
inline QXmlAttributes attributes(std::initializer_list<std::pair<const char *, const char *>> pairs)
{
    QXmlAttributes atts;
    for (const auto &[name, value] : pairs)
        atts.append(QString::fromUtf8(name), {}, QString::fromUtf8(name), QString::fromUtf8(value));
    return atts;
}

/// Notes what the driver asks of its device, one call a line; texts stand between bars.
class RecordingDevice : public PrinterDriver
{
public:
    RecordingDevice()
        : PrinterDriver(QStringLiteral("/dev/null"), false)
    {
    }

    /// Sends an element and answers what came of it.
    QString element(const char *name, const QXmlAttributes &atts = {})
    {
        accepted = startElement({}, {}, QString::fromUtf8(name), atts);
        return takeCalls();
    }
    /// The calls since it was last asked.
    QString takeCalls() { return std::exchange(calls, {}).join(u'\n'); }
    QString method(const char *name) { return element("method", attributes({{"name", name}})); }

    unsigned int getPaperWidth() override { return 48; }
    void reset() override { note("reset"); }
    void setBold() override { note("bold"); }
    void setCharSize() override { note("size"); }
    void setCharSize(int size) override { note("size " + QByteArray::number(size)); }
    void setCenterJustify() override { note("center"); }
    void fullCut() override { note("cut"); }
    void generatePulse() override { note("pulse"); }
    void startSection() override { note("start"); }
    void endSection() override { note("end"); }
    void initPrinter() override { note("init"); }
    void print(unsigned int indent, const QString &text) override
    {
        note("+" + QByteArray::number(indent) + "|" + text.toUtf8() + "|");
    }
    void println(unsigned int indent, const QString &text) override
    {
        note(QByteArray::number(indent) + "|" + text.toUtf8() + "|");
    }
    void println(const QString &text) override { note("|" + text.toUtf8() + "|"); }
    using PrinterDriver::printRowFiscal;
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

    using PrinterDriver::charsize;
    using PrinterDriver::credit;
    using PrinterDriver::currentMethod;
    using PrinterDriver::ipaddress;
    using PrinterDriver::port;
    using PrinterDriver::printerInfo;
    using PrinterDriver::settings;

    bool accepted = true; ///< what startElement answered last

private:
    void note(const QByteArray &call) { calls += QString::fromUtf8(call); }

    QStringList calls;
};

} // namespace support
