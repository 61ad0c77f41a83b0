// SPDX-License-Identifier: MIT
// The print file and the log hold their text in the encoding of the user's locale. The locales are
// the tests' own.
#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "log/logger.h"
#include "tests/support.h"
#include "text/localeencoding.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTextCodec>

#include <gtest/gtest.h>

#include <array>
#include <unistd.h>

using namespace Qt::StringLiterals;
using support::Home;

namespace {

constexpr char sample[] = "caff\u00E8 \u20AC\u0153\u00BD\u0416\U0001F355";

/// The characters beyond ASCII of that text and of the French labels, and their bytes in a codeset.
constexpr std::array letters = {"\u00E8", "\u20AC", "\u0153",    "\u00BD",
                                "\u0416", "\u00E9", "\U0001F355"};
struct Encoding
{
    const char *codeset;
    std::array<const char *, letters.size()> bytes;
};

constexpr Encoding encodings[] = {
    {"ISO-8859-1", {"\xE8", "?", "?", "\xBD", "?", "\xE9", "?"}},
    {"ISO-8859-15", {"\xE8", "\xA4", "\xBD", "?", "?", "\xE9", "?"}},
    {"CP1252", {"\xE8", "\x80", "\x9C", "\xBD", "?", "\xE9", "?"}},
    {"IBM850", {"\x8A", "?", "?", "\xAB", "?", "\x82", "?"}},
    {"IBM858", {"\x8A", "\xD5", "?", "\xAB", "?", "\x82", "?"}},
    {"CP1251", {"?", "\x88", "?", "?", "\xC6", "?", "?"}},
};

QByteArray encoded(QByteArray utf8, const Encoding &encoding)
{
    for (size_t i = 0; i < letters.size(); ++i)
        utf8.replace(letters[i], encoding.bytes[i]);
    return utf8;
}

TEST(Locale, EncodesThePrintFileAndItsLabels)
{
    const QByteArray request =
        QByteArray("<p><method name=\"printFullOrder\"/><headers/><receipe name=\"") + sample
        + "\" number=\"1\"/></p>";
    const Home home("zentaro:{language:{file=\"" ZENTARO_TRANSLATIONS_DIR "/zentaro_fr\";};};");
    const QByteArray utf8 = support::printed(request, home);
    EXPECT_TRUE(utf8.contains("Qt\u00E9 D\u00E9signation"));
    EXPECT_TRUE(utf8.contains(sample));
    for (const QString &other : {u"C"_s, u"xx_XX.ISO-8859-1"_s}) // not installed
        EXPECT_EQ(support::printed(request, home, {"LC_ALL="_L1 + other}), utf8);
    for (const Encoding &encoding : encodings) {
        const support::Locale locale(QString::fromLatin1(encoding.codeset));
        EXPECT_EQ(support::printed(request, home, locale.variables()), encoded(utf8, encoding))
            << encoding.codeset;
    }
}

/// Logs the text in another process, which has this locale.
QByteArray logged(const QStringList &variables)
{
    const Home home;
    support::writeFile(home.configurationPath(), "zentaro:{logger:{type=append;basedir=\""
                                                     + home.path().toUtf8()
                                                     + "\";filename=log;};};");
    const auto logHere = [&] {
        qputenv("HOME", home.path().toUtf8());
        for (const QString &variable : variables)
            qputenv(variable.section(u'=', 0, 0).toUtf8(), variable.section(u'=', 1).toUtf8());
        Logger({}).info(QString::fromUtf8(sample));
        _exit(0);
    };
    EXPECT_EXIT(logHere(), testing::ExitedWithCode(0), "^$");
    const QByteArray line = support::readFile(home.path(u"log"_s)).split('\n').value(1);
    return line.mid(line.indexOf("INFO"));
}

TEST(Locale, EncodesTheLog)
{
    const QByteArray utf8 = QByteArray("INFO: ") + sample;
    for (const QString &other : {u"C.UTF-8"_s, u"C"_s, u"xx_XX.ISO-8859-1"_s}) // not installed
        EXPECT_EQ(logged({"LC_ALL="_L1 + other}), utf8);
    for (const Encoding &encoding : encodings)
        EXPECT_EQ(logged(support::Locale(QString::fromLatin1(encoding.codeset)).variables()),
                  encoded(utf8, encoding))
            << encoding.codeset;
}

TEST(LocaleEncoding, LosesNoCharacter)
{
    EXPECT_EQ(text::encoded(u"\u00E8\U0001F355\u0416", QTextCodec::codecForName("GB18030")),
              "\xA8\xA8\x94\x39\xB8\x33\xA7\xA8");
    EXPECT_EQ(text::encoded(u"a\U0001F355", QTextCodec::codecForName("ISO-8859-1")), "a?");
    EXPECT_EQ(text::encoded(u"\u200B\uFE0F\uFEFF|", QTextCodec::codecForName("ISO-8859-15")),
              "???|");
    EXPECT_EQ(text::encoded(u"a\U0001F355", nullptr), "a\U0001F355");
}

} // namespace
