// SPDX-License-Identifier: MIT
#include "tests/support.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

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
                      {u"-silent"_s, u"-extensions"_s, u"cpp"_s, u"-no-obsolete"_s, u"-locations"_s,
                       u"none"_s, u"-I"_s, u"."_s, u"render"_s, u"util"_s, u"-ts"_s,
                       folder.path(name)});
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
