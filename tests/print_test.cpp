// SPDX-License-Identifier: MIT
#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "tests/recordingdevice.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using support::Home;
using support::Outcome;

namespace {

constexpr char noConfiguration[] = "";

TEST(CommandLine, TakesTwoFilesAndOneWordMore)
{
    const Home home(noConfiguration);
    support::writeFile(home.path(u"in"_s), "<p><method name=\"printPartialOrder\"/></p>");
    const QString in = home.path(u"in"_s);
    const QString out = home.path(u"out"_s);
    for (const QStringList &words : {QStringList{}, {in}, {in, out, u"x"_s, u"y"_s}}) {
        const Outcome outcome = support::zentaroPrint(words, home);
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_TRUE(outcome.output.startsWith("Usage: "));
        EXPECT_TRUE(outcome.output.endsWith("/zentaro-print input_file output_file\n"));
        EXPECT_EQ(outcome.errors, "");
        EXPECT_FALSE(QFileInfo::exists(out));
    }
    for (const QStringList &words : {QStringList{in, out}, {in, out, u"ignored"_s}}) {
        const Outcome outcome = support::zentaroPrint(words, home);
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_EQ(outcome.output + outcome.errors, "");
        EXPECT_EQ(support::readFile(out), "\nj\nJ\n");
        QFile::remove(out);
    }
}

/// What a request leaves in the print file and on standard output, faults included.
TEST(PrintRun, EndsNormallyWhateverTheRequest)
{
    const QByteArray deep = QByteArray("<a>").repeated(998);
    const QByteArray start = "<p><method name=\"printPartialOrder\"/>";
    const QByteArray item = "<receipe number=\"1\" name=\"x\"/>";
    const QByteArray printedItem = "\"1 x                            \"@\n"; // 32 columns, less 2
    const struct
    {
        const char *what;
        QByteArray request, printed, output;
    } rows[] = {
        {"no method", "<p><receipe/></p>", "J\n", ""},
        {"unknown method", "<p><method name=\"printfullorder\"/>" + item + "</p>", "",
         "File Format Not Supported\n"},
        {"method without a name", "<p><method/></p>", "", "File Format Not Supported\n"},
        {"unknown second method", start + "<method name=\"x\"/>" + item + "</p>", "\nj\n",
         "File Format Not Supported\n"},
        {"empty file", "", "", ""},
        {"no XML", "receipe", "", ""},
        {"malformed halfway", start + item + "<receipe number=></p>", "\nj\n" + printedItem, ""},
        {"cut off", start + item, "\nj\n" + printedItem, ""},
        {"unclosed", start + item + "</q>", "\nj\n" + printedItem, ""},
        {"1,000 deep", start + deep + item + QByteArray("</a>").repeated(998) + "</p>",
         "\nj\n" + printedItem + "J\n", ""},
        {"1,001 deep", start + deep + "<a>" + item, "\nj\n", ""},
        {"entities",
         "<!DOCTYPE p [<!ENTITY e SYSTEM \"/etc/passwd\"><!ENTITY n \"y\">]>" + start
             + "&e;<receipe number=\"1\" name=\"&n;\"/></p>",
         QByteArray("\nj\n" + printedItem + "J\n").replace('x', 'y'), ""},
        {"a long way to the root",
         "<!--" + QByteArray(100'000, 'x') + "--><p a='" + QByteArray(100'000, 'x') + "'>"
             + start.sliced(3) + item + "</p>",
         "\nj\n" + printedItem + "J\n", ""},
        {"entities by the million",
         "<!DOCTYPE p [<!ENTITY e '" + QByteArray(1'000, 'y') + "'>]>" + start + "<a b='"
             + QByteArray("&e;").repeated(1'000'000) + "'/>" + item + "</p>",
         "\nj\n", ""},
        {"entities in entities",
         "<!DOCTYPE p [<!ENTITY d 'y'><!ENTITY e '&d;&d;'>]>" + start + item + "</p>", "", ""},
        {"a long entity", "<!DOCTYPE p [<!ENTITY d '" + QByteArray(2'000, 'y') + "'>]>" + start, "",
         ""},
        {"deep content model", "<!DOCTYPE p [<!ELEMENT p " + QByteArray(1'000'000, '('), "", ""},
    };
    const Home home(noConfiguration);
    for (const auto &row : rows) {
        support::writeFile(home.path(u"in"_s), row.request);
        const Outcome outcome =
            support::zentaroPrint({home.path(u"in"_s), home.path(u"out"_s)}, home);
        EXPECT_EQ(outcome.exitStatus, 0) << row.what;
        EXPECT_EQ(outcome.output, row.output) << row.what;
        EXPECT_EQ(outcome.errors, "") << row.what;
        EXPECT_EQ(support::readFile(home.path(u"out"_s)), row.printed) << row.what;
    }
}

/// File names are bytes: those of a Latin-1 system, and what the toolkit takes for its own.
TEST(PrintRun, OpensFilesOfAnyName)
{
    const Home home(noConfiguration);
    const QString script =
        uR"sh(cd "$1" && mkdir "h$(printf '\350')" && cd h* && mkdir -p .zentaro/conf
        printf 'zentaro:{doc:{printGeometry=true; topMargin=1;};};' >.zentaro/conf/zentaro.conf
        printf '<p><method name="printPartialOrder"/><geometry/></p>' >"$(printf 'in\350')"
        cp in* :in
        HOME=$PWD "$0" in* "$(printf 'out\350')" && cat "$(printf 'out\350')"
        HOME=$PWD "$0" :in :out && cat :out && cd .. && rm -r h*)sh"_s;
    const Outcome outcome =
        support::run(u"sh"_s, {u"-c"_s, script, support::zentaroPrintProgram(), home.path()}, home);
    EXPECT_EQ(outcome.output, "\nj\n\"\"@\nJ\n\nj\n\"\"@\nJ\n");
    EXPECT_EQ(outcome.errors, "");
}

/// Changes, drops and doubles bytes at random, the ones that XML and the configuration live on
/// above all.
QByteArray damaged(QByteArray bytes, QRandomGenerator &random)
{
    for (int changes = random.bounded(1, 12); changes > 0 && !bytes.isEmpty(); --changes) {
        const int at = random.bounded(int(bytes.size()));
        switch (random.bounded(4)) {
        case 0:
            bytes[at] = char(random.bounded(256));
            break;
        case 1:
            bytes.remove(at, random.bounded(1, 40));
            break;
        case 2:
            bytes.insert(at, bytes.mid(random.bounded(int(bytes.size())), 60));
            break;
        default:
            bytes[at] = "<>&\"'=:;{}\0\n"[random.bounded(12)];
            break;
        }
    }
    return bytes;
}

/// Every bundled request, by name.
std::vector<QByteArray> requests()
{
    std::vector<QByteArray> all;
    for (const QString &folder : {u"/samples"_s, u"/tests/golden/odd"_s}) {
        const QDir dir(support::sourceDir() + folder);
        for (const QString &name : dir.entryList({u"*.xml"_s}))
            all.push_back(support::readFile(dir.filePath(name)));
    }
    return all;
}

/// Notes the elements that a reader hands over.
class Elements : public QXmlDefaultHandler
{
public:
    bool startElement(const QString &, const QString &, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        seen += u'<' + qName;
        for (int i = 0; i < atts.count(); ++i)
            seen += u' ' + atts.qName(i) + u'=' + atts.value(i);
        return true;
    }
    bool endElement(const QString &, const QString &, const QString &qName) override
    {
        seen += u'>' + qName;
        return true;
    }
    bool endDocument() override
    {
        seen += u'.';
        return true;
    }

    QString seen;
};

/// The requests are read faster than the toolkit's reader does it on its own, and no differently.
TEST(RequestReader, ReadsWhatTheToolkitReads)
{
    QRandomGenerator random(417);
    std::vector<QByteArray> all = requests();
    all.push_back(
        "<a xmlns='u' b='1' xmlns:x='v' x:c='2' xmlnsd='3'><x:e/><y:f xml:lang='it'/></a>");
    all.push_back("<?xml version='1.0' encoding='windows-1252'?><a b='\x80'/>");
    all.push_back("<?xml version='1.0' encoding='utf-8'?><a b='\xC3\xA8 \xEF\xBF\xBE'/>");
    all.push_back("<?xml version='1.0' encoding='no such'?><a b='\xC3\xA8'/>");
    all.push_back("<a b='\xC3'/><!-- cut in a character \xE2\x82 -->");
    all.push_back("<a>" + QByteArray("<b c='\xE2\x82\xAC'/>").repeated(5'000) + "</a>"); // pieces
    const size_t whole = all.size();
    for (size_t i = 0; i < whole; ++i) {
        for (int round = 0; round < 40; ++round)
            all.push_back(damaged(all[i], random));
    }
    for (QByteArray &bytes : all) {
        QBuffer buffer(&bytes);
        Elements expected;
        QXmlSimpleReader reader;
        reader.setContentHandler(&expected);
        reader.parse(QXmlInputSource(&buffer));
        buffer.close();
        Elements found;
        requestreader::read(buffer, found);
        ASSERT_EQ(found.seen, expected.seen) << bytes.toStdString();
    }
}

TEST(PrintRun, SurvivesAnyBytes)
{
    QRandomGenerator random(20'261'121);
    const QByteArray settings =
        support::readFile(support::sourceDir() + u"/samples/zentaro-40.conf"_s);
    const support::Folder folder;
    testing::internal::CaptureStdout();
    for (const QByteArray &request : requests()) {
        for (int round = 0; round < 40; ++round) {
            support::writeFile(folder.path(u"conf"_s),
                               round % 2 ? settings : damaged(settings, random));
            SyncSingleton<ZTConfiguration>::instance()->readFile(folder.path(u"conf"_s), u"cfg"_s);
            QByteArray bytes = damaged(request, random);
            QBuffer buffer(&bytes);
            CompanyPrinterDriver device(folder.path(u"out"_s));
            requestreader::read(buffer, device);
        }
    }
    testing::internal::GetCapturedStdout();
    EXPECT_LT(QFileInfo(folder.path(u"out"_s)).size(), 1'000'000);
}

} // namespace
