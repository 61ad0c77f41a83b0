// SPDX-License-Identifier: MIT
#include "app/compile.h"
#include "app/ztconfiguration.h"
#include "log/logger.h"
#include "render/vocabulary.h"
#include "tests/support.h"
#include "util/hlibrary.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// This program has a configuration of its own, in place of the library's: it notes the keys that
// it is asked for, and switches everything on.

static QSet<QString> keysAsked;

ZTConfiguration::ZTConfiguration() = default;

QString ZTConfiguration::getStrValue(const QString &key) const
{
    keysAsked += key;
    return key.contains(u".print") ? u"true"_s : u""_s;
}

namespace {

QString section(const QString &heading)
{
    const QByteArray page = support::readFile(support::sourceDir() + u"/doc/configuration.md"_s);
    return QString::fromUtf8(page).section(u"\n## "_s + heading, 1).section(u"\n## "_s, 0, 0);
}

/// The first cells of the table rows of a section of the page, without their backquotes.
QStringList firstCells(const QString &heading)
{
    static const QRegularExpression row(u"^\\| `([^`]+)` \\|"_s,
                                        QRegularExpression::MultilineOption);
    QStringList cells;
    for (const auto &match : row.globalMatch(section(heading)))
        cells += match.captured(1);
    return cells;
}

void expectAsked(const QSet<QString> &page)
{
    EXPECT_EQ((keysAsked - page).values(), QStringList()) << "asked for, and not on the page";
    EXPECT_EQ((page - keysAsked).values(), QStringList()) << "on the page, and never asked for";
}

TEST(ConfigurationPage, ListsTheKeysThatThePrintRunAsksFor)
{
    const support::Folder folder;
    QByteArray program = "zentaro-print";
    QByteArray output = folder.path(u"out"_s).toLocal8Bit();
    const QDir samples(support::sourceDir() + u"/samples"_s);
    for (const QString &name : samples.entryList({u"*.xml"_s})) {
        QByteArray request = samples.filePath(name).toLocal8Bit();
        char *words[] = {program.data(), request.data(), output.data(), nullptr};
        compile(3, words);
    }
    const QStringList language = firstCells(u"Language"_s);
    QSet<QString> page(language.begin(), language.end());
    QStringList keyWords = firstCells(u"Documents"_s);
    const QStringList prefixes = keyWords.filter(u"zentaro."_s);
    keyWords.removeIf([](const QString &word) { return word.startsWith(u"zentaro."); });
    for (const QString &prefix : prefixes) {
        // Fiscal documents print no margin, and the others no shortened descriptions.
        const bool fiscal = prefix == "zentaro.fiscaldoc."_L1;
        const auto unread = fiscal ? "topMargin"_L1 : "descriptionWidth"_L1;
        for (const QString &keyWord : keyWords) {
            if (keyWord != unread)
                page += prefix + keyWord;
        }
    }
    expectAsked(page);
}

TEST(ConfigurationPage, ListsTheKeysThatTheLibrariesAskFor)
{
    keysAsked.clear();
    const Logger logger(u"any"_s);
    for (const auto setting :
         {&HLibrary::dbname, &HLibrary::username, &HLibrary::password, &HLibrary::hostname})
        setting();
    HLibrary::pathWithBinaryFile(u"program"_s);
    for (const DocumentMethod &method : documentMethods) {
        if (method.settingsType != "sold"_L1) // the list of sold items has no copy number
            HLibrary::copyNumber(method.settingsType);
    }
    const QString heading = u"Shared libraries"_s;
    const QStringList cells = firstCells(heading);
    QSet<QString> page(cells.begin(), cells.end());
    const QString prefixes =
        section(heading).section(u"behind it |"_s, 1).section(u"copyNumber"_s, 0, 0);
    for (const QString &prefix : prefixes.split(u'`').filter(u"zentaro."_s))
        page += prefix + "copyNumber"_L1;
    expectAsked(page);
}

} // namespace
