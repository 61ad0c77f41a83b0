// SPDX-License-Identifier: MIT
#include "tests/support.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString compiled(const char *language)
{
    return QStringLiteral(ZENTARO_TRANSLATIONS_DIR "/zentaro_") + QString::fromLatin1(language);
}

QByteArray sample(const char *name)
{
    return support::readFile(support::sourceDir() + u"/samples/"_s + QString::fromLatin1(name)
                             + u".xml"_s);
}

/// The configuration for 40 columns with a catalogue named in it.
QByteArray configuration(const QByteArray &base, const QByteArray &file)
{
    QByteArray text = support::readFile(support::sourceDir() + u"/samples/zentaro-40.conf"_s);
    text.replace("basedir = \"\"", "basedir = \"" + base + "\"");
    text.replace("file = \"\"", "file = \"" + file + "\"");
    return text;
}

QByteArray printedIn(const char *language, const char *request)
{
    return support::printed(sample(request),
                            support::Home(configuration(compiled(language).toUtf8(), "")));
}

TEST(Translation, PrintsADocumentInItalian)
{
    const QByteArray receipt = printedIn("it", "printFullOrderReceipt");
    EXPECT_TRUE(receipt.contains("\" Numero progressivo: 2026/0417\"@\n"));
    EXPECT_TRUE(receipt.contains("\"CLIENTE\"@\n"));
    EXPECT_TRUE(receipt.contains("\"Qt\u00E0 Descrizione          Prezzo  Importo\"@\n"));
    // The label reads "TOTALE" while the columns are made, and one character less on paper.
    EXPECT_TRUE(receipt.contains("\"    SOMMA.....................    81.50\"@\n"));
    EXPECT_TRUE(printedIn("it", "printReport").contains("\"SOMMA...................913.50\"@\n"));
    EXPECT_TRUE(printedIn("it", "printStatementOfAccount")
                    .contains("\"12/11/2026:    Ricevuta.........81.50\"@\n"));
    EXPECT_TRUE(printedIn("it", "printAbstractOrderReceipt")
                    .contains("\"   Corrispettivo non pagato: 1.50\"@\n"));
}

TEST(Translation, PrintsADocumentInGerman)
{
    const QByteArray invoice = printedIn("de", "printFullOrderInvoice");
    EXPECT_TRUE(invoice.contains("\" Rechnung Nr.: 2026/112\"@\n"));
    EXPECT_TRUE(invoice.contains("\"    Nettobetrag................   472.36\"@\n"));
    EXPECT_TRUE(invoice.contains("\"    GESAMT.....................   519.60\"@\n"));
    EXPECT_TRUE(printedIn("de", "printReport").contains("          \u00DCBERSICHT\"@\n"));
    // The one title that is Italian in every language.
    EXPECT_TRUE(printedIn("de", "printAbstractOrderReceipt")
                    .contains("\"   Corrispettivo non pagato: 1.50\"@\n"));
}

TEST(Translation, IsFoundByTheToolkitsRules)
{
    const support::Folder folder;
    const QByteArray base = folder.path(u"lingue-\u00E8"_s).toUtf8();
    QDir().mkpath(QString::fromUtf8(base));
    QFile::copy(compiled("it") + u".qm"_s, QString::fromUtf8(base) + u"/zentaro_it.qm"_s);
    support::writeFile(QString::fromUtf8(base) + u"/broken.qm"_s, "no catalogue");
    const struct
    {
        QByteArray base, file;
        const char *locale;
        bool found;
    } rows[] = {
        {base, "/", "it_IT.UTF-8", true}, // "/zentaro_it_IT" is shortened to "/zentaro_it"
        {base, "/", "de_DE.UTF-8", false},
        {base, "/", "C", false},
        {base, "/zentaro_it", "C", true},
        {base, "/zentaro_it.qm", "C", true},
        {base, "/zentaro_it_CH.old", "C", true},
        {base + "/zent", "aro_it", "C", true}, // joined with nothing between
        {base, "zentaro_it", "C", false},
        {"", base + "/zentaro_it", "C", true},
        {base, "", "C", false},
        {base, "/broken", "C", false},
        {"", "", "C", false},
        {"", "/", "C", false},
    };
    for (const auto &row : rows) {
        const support::Home home(configuration(row.base, row.file));
        const QByteArray printed = support::printed(sample("printFullOrder"), home,
                                                    {u"LC_ALL="_s + QLatin1StringView(row.locale)});
        EXPECT_EQ(printed.contains("CLIENTE"), row.found)
            << row.base.data() << ' ' << row.file.data();
        EXPECT_EQ(printed.contains("CUSTOMER"), !row.found);
    }
}

/// What the sources print is what the catalogues translate, all of it, with the blanks that part a
/// label from its value.
TEST(Translation, IsCompleteInEveryLanguage)
{
    const QDir root(support::sourceDir());
    const support::Folder folder;
    const QStringList catalogues = QDir(root.filePath(u"i18n"_s)).entryList({u"*.ts"_s});
    EXPECT_EQ(catalogues.size(), 4);
    for (const QString &name : catalogues) {
        const QByteArray committed = support::readFile(root.filePath(u"i18n/"_s + name));
        support::writeFile(folder.path(name), committed);
        QProcess lupdate;
        lupdate.setWorkingDirectory(root.path());
        lupdate.start(QStringLiteral(ZENTARO_LUPDATE),
                      {u"-silent"_s, u"-no-obsolete"_s, u"-locations"_s, u"none"_s, u"-I"_s, u"."_s,
                       u"render"_s, u"util"_s, u"-ts"_s, folder.path(name)});
        lupdate.waitForFinished();
        EXPECT_EQ(support::readFile(folder.path(name)), committed)
            << "run scripts/update-translations";

        QDomDocument catalogue;
        EXPECT_TRUE(catalogue.setContent(committed));
        const QDomNodeList messages = catalogue.elementsByTagName(u"message"_s);
        EXPECT_GE(messages.count(), 40);
        for (int i = 0; i < messages.count(); ++i) {
            const QString source = messages.at(i).firstChildElement(u"source"_s).text();
            const QDomElement translation = messages.at(i).firstChildElement(u"translation"_s);
            const QString text = translation.text();
            EXPECT_FALSE(translation.hasAttribute(u"type"_s)) << source.toStdString();
            EXPECT_FALSE(text.isEmpty()) << source.toStdString();
            EXPECT_EQ(text.endsWith(u' '), source.endsWith(u' ')) << source.toStdString();
            EXPECT_EQ(text.startsWith(u"    "), source.startsWith(u"    ")) << text.toStdString();
        }
    }
}

} // namespace
