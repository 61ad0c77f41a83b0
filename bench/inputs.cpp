// SPDX-License-Identifier: MIT
#include "bench/inputs.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace inputs {

void openFor(QFile &file, QIODevice::OpenMode mode)
{
    if (file.open(mode))
        return;
    std::fprintf(stderr, "bench: cannot open %s\n", qPrintable(file.fileName()));
    std::exit(2);
}

void writeReceipt(const QString &path, int items)
{
    QFile file(path);
    openFor(file, QIODevice::WriteOnly);
    file.write(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<print>\n"
        "<method name=\"printFullOrderReceipt\"/>\n"
        "<printers name=\"Cassa 1\" charsize=\"0\" ipaddress=\"192.168.1.50\"/>\n<geometry/>\n"
        "<headers line1=\"Ricevuta\" line2=\"Grazie e arrivederci\"/>\n"
        "<company name=\"Trattoria Nonna Lucia\" street=\"Via Garibaldi 12\"/>\n"
        "<receipt serialnumber=\"2026/0417\"/>\n"
        "<orderinfo date=\"21/11/2026\" time=\"21:48\" table=\"7\" waiter=\"Niccol\u00F2\"/>\n");
    for (int i = 0; i < items; ++i) {
        file.write(QByteArray("<receipe number=\"") + char('1' + i % 9)
                   + "\" name=\"Tagliatelle al rag\u00F9, porzione " + QByteArray::number(i)
                   + "\" price=\"9.50\" totalPrice=\"19.00\"/>\n");
    }
    file.write("<total price=\"81.50\"/>\n</print>\n");
}

void writeSoldList(const QString &path, int items)
{
    QFile file(path);
    openFor(file, QIODevice::WriteOnly);
    file.write("<print>\n<method name=\"printSold\"/>\n");
    for (int i = 0; i < items; ++i) {
        file.write("<receipe quantity=\"" + QByteArray::number(i % 90 + 1)
                   + "\" description=\"Caff\u00E8 macchiato " + QByteArray::number(i)
                   + "\" amount=\"" + QByteArray::number(i % 500) + ".40\"/>\n");
    }
    file.write("</print>\n");
}

void writeConfiguration(const QString &home)
{
    QFile sample(QStringLiteral(ZENTARO_SOURCE_DIR "/samples/zentaro-40.conf"));
    openFor(sample, QIODevice::ReadOnly);
    QByteArray text = sample.readAll();
    text.replace("basedir = \"\"", "basedir = \"" ZENTARO_TRANSLATIONS_DIR "/zentaro_\"");
    text.replace("file = \"\"", "file = \"it\"");
    QDir().mkpath(home + u"/.zentaro/conf"_s);
    QFile file(home + u"/.zentaro/conf/zentaro.conf"_s);
    openFor(file, QIODevice::WriteOnly);
    file.write(text);
}

} // namespace inputs
