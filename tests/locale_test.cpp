// SPDX-License-Identifier: MIT
// The log holds its text in the encoding of the user's locale, as the print file does.
#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "log/logger.h"
#include "tests/support.h"
#include "text/localeencoding.h"

#include <QTextCodec>

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;
using support::Home;

namespace {

constexpr char sample[] = "caff\u00E8 \u20AC\u0153\u00BD\u0416\U0001F355";

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
    EXPECT_EQ(logged(support::Locale(u"CP1252"_s).variables()), "INFO: caff\xE8 \x80\x9C\xBD??");
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
