// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "app/ztconfiguration.h"
#include "tests/support.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using libconfig::Config;

namespace {

/// Loads a file of the given text and tells its tree: `[attributes, by name](children)`.
class Loaded : public Config
{
public:
    explicit Loaded(const QByteArray &text, const QString &format = u"cfg"_s)
    {
        load(text, format);
    }

    void load(const QByteArray &text, const QString &format = u"cfg"_s)
    {
        support::writeFile(path(), text);
        readFile(path(), format);
    }

    QString path() const { return folder.path(u"test.conf"_s); }
    QString tree() const { return treeOf(document->firstChildElement()); }
    bool isAtFileElement() const
    {
        const QDomElement top = document->firstChildElement();
        return top.tagName() == path() && top.nextSiblingElement().isNull();
    }

private:
    static QString treeOf(const QDomNode &parent)
    {
        QStringList settings;
        const QDomNamedNodeMap attributes = parent.attributes();
        for (int i = 0; i < attributes.count(); ++i)
            settings += attributes.item(i).nodeName() + u'=' + attributes.item(i).nodeValue();
        settings.sort();
        QStringList groups;
        for (QDomNode n = parent.firstChild(); !n.isNull(); n = n.nextSibling())
            groups += n.nodeName() + treeOf(n);
        return u'[' + settings.join(u',') + u"]("_s + groups.join(u' ') + u')';
    }

    support::Folder folder;
};

const char workedExample[] = R"(zentaro : {
    logger : {
        level = "WARNING";
        basedir = "/var/log/pos";
        filename = print.log;
        type = "append";
    };
    language : {
        basedir = " /usr/share/pos/lang ";
        file = "de";
    };
};
)";

TEST(Config, AnswersDottedKeys)
{
    const Loaded config(workedExample);
    EXPECT_TRUE(config.isAtFileElement());
    EXPECT_EQ(config.tree(),
              u"[](zentaro[](logger[basedir=/var/log/pos,filename=print.log,level=WARNING,"
              "type=append]() language[basedir= /usr/share/pos/lang ,file=de]()))"_s);
    const struct
    {
        QString key, value;
    } rows[] = {
        {u"zentaro.logger.level"_s, u"WARNING"_s},
        {u"zentaro.logger.filename"_s, u"print.log"_s},
        {u"zentaro.language.basedir"_s, u" /usr/share/pos/lang "_s},
        {u"zentaro.logger.size"_s, u""_s},
        {u"logger.level"_s, u""_s},
        {u"zentaro.logger"_s, u""_s},
        {u"zentaro"_s, u""_s},
        {u""_s, u""_s},
        {u"Zentaro.logger.level"_s, u""_s},
        {u"zentaro.logger.level."_s, u"WARNING"_s},      // an empty field ends the key
        {u"zentaro.logger.level..more"_s, u"WARNING"_s}, // whatever follows it
        {u"zentaro.logger..level"_s, u""_s},
        {u"zentaro.logger.level.x"_s, u""_s},
        {u" zentaro.logger.level"_s, u""_s},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(config.lookup(row.key), row.value) << row.key.toStdString();
        EXPECT_FALSE(config.lookup(row.key).isNull()) << row.key.toStdString();
    }
    EXPECT_EQ(config.lookup(QDomNode(), u"zentaro.logger.level"_s), u""_s);
    EXPECT_EQ(Config().lookup(u"zentaro.logger.level"_s), u""_s);
}

TEST(Config, SearchesGroupsOfTheSameNameInFileOrder)
{
    const auto lookup = [](const char *text, const QString &key) {
        return Loaded(text).lookup(key);
    };
    EXPECT_EQ(lookup("z:{a:{}; a:{k=1;};};", u"z.a.k"_s), u"1"_s);
    EXPECT_EQ(lookup("z:{a:{k=\"\";}; a:{k=2;};};", u"z.a.k"_s), u"2"_s);
    EXPECT_EQ(lookup("z:{a:{k=1;}; a:{k=2;};};", u"z.a.k"_s), u"1"_s);
    EXPECT_EQ(lookup("z:{a:{b:{k=;};}; x:{b:{k=7;};}; a:{b:{j=3;}; b:{k=4;};};};", u"z.a.b.k"_s),
              u"4"_s); // back out of a group without the key, past one of another name
    EXPECT_EQ(lookup("z:{k=1;}; y:{k=2;};", u"y.k"_s), u""_s); // only the first top-level group
    EXPECT_EQ(lookup("k=1; z:{j=2;};", u"z.j"_s), u"2"_s);
    EXPECT_EQ(lookup("z:{my key = 1;};", u"z.my key"_s), u"1"_s);
    EXPECT_EQ(lookup(": { : { = 5; }; };", u"..k"_s),
              u""_s); // a third field is empty: the key ends
    EXPECT_EQ(lookup(": { k = 5; };", u".k"_s), u"5"_s);
}

TEST(Config, ReactsToFaultyTextAsItAlwaysDid)
{
    const struct
    {
        const char *what;
        QByteArray text;
        QString tree;
    } rows[] = {
        {"empty file", "", u"[]()"_s},
        {"no structure", "just text", u"[]()"_s},
        {"settings at the top", "a=1; b = 2 ;", u"[a=1,b=2]()"_s},
        {"missing semicolon", "z:{a = 1\nb = 2;\nc = 3;};", u"[](z[a=1\nb = 2,c=3]())"_s},
        {"missing semicolon at the end", "z:{a = 1", u"[](z[a=1]())"_s},
        {"colon without brace takes the next group's", "z:{ a: lost = 1; b:{k=2;};};",
         u"[](z[](a[k=2]()))"_s},
        {"colon without any brace", "z:{k=1; a: rest = 2;", u"[](z[k=1]())"_s},
        {"brace without semicolon", "z:{ a:{k=1;} lost = 2; b:{j=3;}; c:{l=4;}; };",
         u"[](z[](a[k=1]() b[j=3]() c[l=4]()))"_s},
        {"a later brace closes the group early", "z:{ a:{k=1;} b:{j=3;}; }; c=4;",
         u"[](z[](a[k=1]()))"_s},
        {"brace at the top ends the reading", "a=1; }; b=2;", u"[a=1]()"_s},
        {"stray semicolon", "z:{a=1;; b=2;};", u"[](z[; b=2,a=1]())"_s},
        {"comment", "z:{# note\n level = 1;};", u"[](z[# note\n level=1]())"_s},
        {"text at the end", "z:{a=1;}; rest", u"[](z[a=1]())"_s},
        {"open groups at the end", "z:{a:{k=1;", u"[](z[](a[k=1]()))"_s},
        {"empty groups", "z:{ }; y:{a:{};};", u"[](y[]())"_s},
        {"structure in a value", "z:{k = a=b:{c};};", u"[](z[k=a=b:{c}]())"_s},
        {"quotes", "z:{k=\"x\"y\"z\"; e=\"\"; s=\"  a b  \";};", u"[](z[e=,k=xyz,s=  a b  ]())"_s},
        {"given twice", "z:{k=1; k=2;};", u"[](z[k=2]())"_s},
        {"same group twice", "z:{a:{i=1;}; b:{j=2;}; a:{k=3;};};",
         u"[](z[](a[i=1]() b[j=2]() a[k=3]()))"_s},
        {"only seven characters are white space", "z:{\t\v\f\r\n\xA0k\xA0 = \xA0\x85v\x85\t;};",
         u"[](z[k=\u0085v\u0085]())"_s},
        {"NUL ends a name or value", QByteArray("z\0y:{a \0b=1 \0 2; c=3;};", 24),
         u"[](z[a=1,c=3]())"_s},
        {"ISO 8859-1", "z:{citt\xE0 = Forl\xEC;};", u"[](z[citt\u00E0=Forl\u00EC]())"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(Loaded(row.text).tree(), row.tree) << row.what;
}

TEST(Config, KeepsTextOfAnyLengthAndGroupsOfAnyDepth)
{
    const QByteArray name(5'000, 'n');
    const QByteArray value(100'000, 'v');
    const Loaded lengthy("z:{" + name + '=' + value + ";};");
    EXPECT_EQ(lengthy.lookup(u"z."_s + QString::fromLatin1(name)), QString::fromLatin1(value));

    constexpr int depth = 200'000;
    const Loaded nested(QByteArray("z:{").repeated(depth) + "k=1;");
    EXPECT_EQ(nested.lookup(u"z."_s.repeated(depth) + u'k'), u"1"_s);
}

TEST(Config, ReadsXml)
{
    Loaded config("<?xml version=\"1.0\"?><!-- note --><z a=\"1\"><g k=\"\u00E8\"/></z>", u"xml"_s);
    EXPECT_TRUE(config.isAtFileElement());
    EXPECT_EQ(config.lookup(u"z.a"_s), u"1"_s);
    EXPECT_EQ(config.lookup(u"z.g.k"_s), u"\u00E8"_s);
    config.load("<z a=\"1\"/>", u"xml"_s);
    EXPECT_EQ(config.lookup(u"z.a"_s), u"1"_s);
    config.load("<z><z a=\"1\"/>", u"xml"_s); // not well-formed: nothing of it is kept
    EXPECT_EQ(config.lookup(u"z.a"_s), u""_s);
    EXPECT_EQ(config.lookup(u"z.z.a"_s), u""_s);
    for (const int depth : {1'000, 1'001}) { // one takes a moment, a hundred thousand would minutes
        config.load(QByteArray("<z>").repeated(depth - 1) + "<z a='1'/>"
                        + QByteArray("</z>").repeated(depth - 1),
                    u"xml"_s);
        EXPECT_EQ(config.lookup(u"z."_s.repeated(depth) + u'a'), depth > 1'000 ? u""_s : u"1"_s);
    }
    config.readFile(u"/dev/zero"_s, u"xml"_s); // never ends
    EXPECT_EQ(config.tree(), u"[]()"_s);
    config.load("<z a=\"1\"/>", u"XML"_s); // an unknown format word
    EXPECT_EQ(config.tree(), u"[]()"_s);
}

TEST(Config, ReadsAgainWhateverTheFirstReadingLeft)
{
    Loaded config("z:{k=1;}; }; left open");
    EXPECT_EQ(config.lookup(u"z.k"_s), u"1"_s);
    config.load("z:{k=2;};");
    EXPECT_EQ(config.lookup(u"z.k"_s), u"2"_s);
    for (const QString &unreadable : {config.path() + u".missing"_s, support::sourceDir()}) {
        testing::internal::CaptureStdout();
        config.readFile(unreadable, u"cfg"_s);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error in the method FileReader::open( "
                                                              + unreadable.toStdString()
                                                              + " ): File Not Found\n");
        EXPECT_EQ(config.tree(), u"[]()"_s);
    }
    config.readFile(u"/missing.xml"_s, u"xml"_s);
    config.load("z:{k=3;};");
    EXPECT_EQ(config.lookup(u"z.k"_s), u"3"_s);
}

TEST(Config, JumpsBehindAnyByte)
{
    Loaded config("z\xFF:{k=1;}");
    ASSERT_TRUE(config.openFile());
    EXPECT_TRUE(config.jump('\xFF'));
    EXPECT_TRUE(config.jump('}')); // the last byte of the file
    EXPECT_FALSE(config.jump('}'));
}

TEST(ZTConfiguration, ReadsTheUsersFileInLatin1)
{
    const support::Home home("zentaro:{caff\xE8 = \xE8\x80; caff? = asked for in Latin-1;};");
    qputenv("HOME", home.path().toUtf8());
    const ZTConfiguration config;
    EXPECT_EQ(config.getStrValue(u"zentaro.caff\u00E8"_s), u"\u00E8\u0080"_s);
    EXPECT_EQ(config.getStrValue(u"zentaro.caff\u20AC"_s), u"asked for in Latin-1"_s);
    EXPECT_FALSE(config.getStrValue(u"zentaro.missing"_s).isNull());
}

} // namespace
