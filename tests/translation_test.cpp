// SPDX-License-Identifier: MIT
#include "tests/support.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

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

TEST(Translation, PrintsDocumentsInOtherLanguages)
{
    const std::tuple<const char *, const char *, QByteArray> rows[] = {
        {"it", "printFullOrderReceipt", "\" Numero progressivo: 2026/0417"},
        {"it", "printFullOrderReceipt", "\"Qt\u00E0 Descrizione          Prezzo  Importo"},
        // The label reads "TOTALE" while the columns are made, and one character less on paper.
        {"it", "printFullOrderReceipt", "\"    SOMMA.....................    81.50"},
        {"it", "printReport", "\"SOMMA...................913.50"},
        {"it", "printStatementOfAccount", "\"12/11/2026:    Ricevuta.........81.50"},
        {"de", "printFullOrderInvoice", "\" Rechnung Nr.: 2026/112"},
        {"de", "printFullOrderInvoice", "\"    Nettobetrag................   472.36"},
        {"de", "printReport", "          \u00DCBERSICHT"},
        // The one title that is Italian in every language.
        {"de", "printAbstractOrderReceipt", "\"   Corrispettivo non pagato: 1.50"}};
    for (const auto &[language, request, line] : rows) {
        const support::Home home(configuration(compiled(language).toUtf8(), ""));
        EXPECT_TRUE(support::printed(sample(request), home).contains(line + "\"@\n"))
            << line.data();
    }
}

TEST(Translation, IsFoundByTheToolkitsRules)
{
    const support::Folder folder;
    const QByteArray base = folder.path(u"lingue-\u00E8"_s).toUtf8();
    QDir().mkpath(QString::fromUtf8(base));
    QFile::copy(compiled("it") + u".qm"_s, QString::fromUtf8(base) + u"/zentaro_it.qm"_s);
    support::writeFile(QString::fromUtf8(base) + u"/broken.qm"_s, "no catalogue");
    const std::tuple<QByteArray, QByteArray, QString, bool> rows[] = {
        {base, "/", u"it_IT.UTF-8"_s, true}, // "/zentaro_it_IT" is shortened to "/zentaro_it"
        {base, "/", u"de_DE.UTF-8"_s, false},
        {base, "/zentaro_it", u"C"_s, true},
        {base, "/zentaro_it_CH.old", u"C"_s, true},
        {base + "/zent", "aro_it", u"C"_s, true}, // joined with nothing between
        {base, "zentaro_it", u"C"_s, false},
        {"", base + "/zentaro_it.qm", u"C"_s, true},
        {base, "", u"C"_s, false},
        {base, "/broken", u"C"_s, false},
        {"", "", u"C"_s, false}};
    for (const auto &[folderName, file, locale, found] : rows) {
        const support::Home home(configuration(folderName, file));
        const QByteArray printed =
            support::printed(sample("printFullOrder"), home, {"LC_ALL="_L1 + locale});
        EXPECT_TRUE(printed.contains(found ? "CLIENTE" : "CUSTOMER")) << file.data();
    }
}

/// What the sources print is what the catalogues translate, all of it, with the blanks that part a
/// label from its value.
TEST(Translation, IsCompleteInEveryLanguage)
{
    const QDir root(support::sourceDir());
    const support::Folder folder;
    static const QRegularExpression message(
        u"<source>(.+)</source>\\s*<translation>(.+)</translation>"_s);
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

        qsizetype translated = 0;
        for (const auto &match : message.globalMatch(QString::fromUtf8(committed))) {
            const QString source = match.captured(1);
            const QString text = match.captured(2);
            EXPECT_EQ(text.endsWith(u' '), source.endsWith(u' ')) << source.toStdString();
            EXPECT_EQ(text.startsWith(u"    "), source.startsWith(u"    ")) << text.toStdString();
            ++translated;
        }
        EXPECT_GE(translated, 40);
        EXPECT_EQ(translated, committed.count("<message>"));
    }
}

} // namespace
