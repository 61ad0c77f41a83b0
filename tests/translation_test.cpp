// SPDX-License-Identifier: MIT
#include "app/ztconfiguration.h"
#include "tests/support.h"

#include <QDir>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDir root(support::sourceDir());

/// A label, what tells it from others of the same words, and its translation.
const QRegularExpression message(u"<source>(.+)</source>\\s*(?:<comment>(.+)</comment>\\s*)?"
                                 "<translation>(.+)</translation>"_s);

QStringList catalogues(const QString &kind)
{
    return QDir(root.filePath(u"i18n"_s)).entryList({kind + u"_*.ts"_s});
}

/// What the sources say is what the catalogues translate, all of it, with the blanks that part a
/// label from its value.
void expectComplete(const QString &kind, const QStringList &sources, qsizetype least)
{
    const support::Folder folder;
    EXPECT_EQ(catalogues(kind).size(), 4);
    for (const QString &name : catalogues(kind)) {
        const QByteArray committed = support::readFile(root.filePath(u"i18n/"_s + name));
        support::writeFile(folder.path(name), committed);
        QProcess lupdate;
        lupdate.setWorkingDirectory(root.path());
        lupdate.start(QStringLiteral(ZENTARO_LUPDATE),
                      QStringList{u"-silent"_s, u"-extensions"_s, u"cpp"_s, u"-no-obsolete"_s,
                                  u"-locations"_s, u"none"_s, u"-I"_s, u"."_s}
                          + sources + QStringList{u"-ts"_s, folder.path(name)});
        lupdate.waitForFinished();
        EXPECT_EQ(support::readFile(folder.path(name)), committed)
            << "run scripts/update-translations";

        qsizetype translated = 0;
        for (const auto &match : message.globalMatch(QString::fromUtf8(committed))) {
            const QString source = match.captured(1);
            const QString text = match.captured(3);
            EXPECT_EQ(text.endsWith(u' '), source.endsWith(u' ')) << source.toStdString();
            EXPECT_EQ(text.startsWith(u"    "), source.startsWith(u"    ")) << text.toStdString();
            EXPECT_EQ(text.contains(u"%1"), source.contains(u"%1")) << text.toStdString();
            ++translated;
        }
        EXPECT_GE(translated, least);
        EXPECT_EQ(translated, committed.count("<message>"));
    }
}

TEST(Translation, IsCompleteInEveryLanguage)
{
    expectComplete(u"zentaro"_s, {u"render"_s, u"util"_s}, 50);
    expectComplete(u"window"_s,
                   {u"tools/window"_s, u"tools/check/elementtable.cpp"_s, u"tools/config"_s,
                    u"tools/terminal.cpp"_s, u"tools/preview/paper.cpp"_s,
                    u"tools/preview/printfile.cpp"_s, u"render/settings.h"_s},
                   150);
}

/// The characters that each label has, where it stands in more than one column in the narrowest, on
/// the paper of a sample configuration. The others stand before a value, an amount at least.
QHash<QString, int> roomOn(const QString &configuration)
{
    const ZTConfiguration settings(root.filePath(configuration));
    const auto width = [&](const QString &keyWord) {
        return settings.getStrValue("zentaro.reportdoc."_L1 + keyWord).toInt();
    };
    const int paper = width(u"paperWidth"_s);
    const int price = width(u"priceFieldWidth"_s);
    const int total = width(u"totalPriceFieldWidth"_s);
    const int item = paper - width(u"quantityFieldWidth"_s) - price - total - 1;
    const int dotted = paper - 15;
    const int movement = paper - 15 - price - 3;
    QHash<QString, int> room{
        {u"Num"_s, width(u"quantityFieldWidth"_s)},
        {u"Description"_s, item},
        {u"Description|statement of account"_s, movement},
        {u"Date"_s, 15},
        {u"Price"_s, qMin(price, total)},
        {u"Amount"_s, qMin(price, total)},
        {u"TOTAL"_s, qMin(10, qMin(item, dotted))}, // a blank parts the columns of the report
        {u"Taxable"_s, qMin(item, dotted)},
        {u"TaxRate"_s, item},
        {u"Tax"_s, qMin(item, dotted)},
        {u"Number"_s, dotted},
        {u"Serials"_s, dotted},
        {u"TAXRATE"_s, 6},
        {u"TAXABLE"_s, 10},
        {u"TAX"_s, 10},
        {u"AMOUNT"_s, 10},
        {u"SERIAL"_s, 9},
    };
    for (const auto title :
         {"CUSTOMER"_L1, "SUMMARIES"_L1, "PREFISCAL SUMMARY"_L1, "RECEIPTS SUMMARY"_L1,
          "INVOICES SUMMARY"_L1, "CANCELLED DOC SUMMARY"_L1})
        room.insert(title, paper);
    for (const auto type : {"Payment"_L1, "Receipt"_L1, "Invoice"_L1, "Credit note"_L1,
                            "Opening balance"_L1, "Balance"_L1})
        room.insert(type, qMax(movement, 14)); // narrow paper has no room for words
    room.insert({}, paper - 7);
    return room;
}

TEST(Translation, FitsItsColumnOnEveryPaper)
{
    for (const QString &paper : {u"samples/zentaro-32.conf"_s, u"samples/zentaro-40.conf"_s}) {
        const QHash<QString, int> room = roomOn(paper);
        for (const QString &name : catalogues(u"zentaro"_s)) {
            QByteArray catalogue = support::readFile(root.filePath(u"i18n/"_s + name));
            catalogue.remove(0, catalogue.indexOf("<name>PrinterDriver<")); // which are printed
            QStringList labels;
            for (const auto &match : message.globalMatch(QString::fromUtf8(catalogue))) {
                const QString comment = match.captured(2);
                labels += match.captured(1) + (comment.isEmpty() ? comment : u'|' + comment);
                const QString text = match.captured(3);
                EXPECT_LE(text.size(), room.value(labels.last(), room[{}]))
                    << paper.toStdString() << ' ' << text.toStdString();
                EXPECT_FALSE(text.contains(u"TOTALE")) << "which is printed as another word";
            }
            for (const QString &label : room.keys())
                EXPECT_TRUE(label.isEmpty() || labels.contains(label)) << label.toStdString();
        }
    }
}

} // namespace
