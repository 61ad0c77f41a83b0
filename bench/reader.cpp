// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QFile>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

/// Reads the file with the toolkit's reader as it comes, and does nothing with its elements.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QFile request(QFile::decodeName(argv[1]));
    QXmlDefaultHandler handler;
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    const QXmlInputSource source(&request);
    return reader.parse(source) ? 0 : 1;
}
