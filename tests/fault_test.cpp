// SPDX-License-Identifier: MIT
// What a shop does to a print run: doc/faults.md tells what is decided for each of these.
#include "tests/support.h"

#include <gtest/gtest.h>

#include <span>
#include <unistd.h>

using namespace Qt::StringLiterals;
using support::Home;
using support::Outcome;

namespace {

const QByteArray start = "<p><method name=\"printPartialOrder\"/>";
const QByteArray item = "<receipe number=\"1\" name=\"x\"/>";
const QByteArray printedItem = "\"1 x                            \"@\n"; // 32 columns, less 2
const QByteArray whole = "\nj\n" + printedItem + "J\n";
const QByteArray notOpened = "PrintManager::printAbstractOrder(...): Unable To Open File\n";
const QByteArray notWhole = "The document was not written completely: ";

/// Runs a shell script in the home folder, as a user whom file permissions bind. In the script
/// `run` starts the program and shows its exit status, and `show` shows a print file; `request` is
/// a document of one item, `long` one of 20,000.
class Shell
{
public:
    explicit Shell(const QByteArray &settings = "")
        : home(settings)
    {
        support::writeFile(home.path(u"request"_s), start + item + "</p>");
        support::writeFile(home.path(u"long"_s), start + item.repeated(20'000) + "</p>");
    }

    Outcome run(const QByteArray &script, const QByteArray &limits = {}) const
    {
        const QByteArray prelude = "cd \"$HOME\"; " + limits
                                   + "\nrun() { \"$P\" \"$@\"; echo \"status $?\"; }\n"
                                     "show() { cat \"$1\" 2>/dev/null || echo missing; }\n";
        QStringList words{u"sh"_s, u"-c"_s, QString::fromUtf8(prelude + script)};
        if (geteuid() == 0)
            words = QStringList{u"setpriv"_s, u"--bounding-set=-dac_override,-dac_read_search"_s}
                    + words;
        return support::run(words.takeFirst(), words, home,
                            {"P="_L1 + support::zentaroPrintProgram()});
    }

    QByteArray noSettings() const
    {
        return "Error in the method FileReader::open( " + home.configurationPath().toUtf8()
               + " ): File Not Found\n";
    }

    const Home home;
};

struct Row
{
    const char *what;
    QByteArray script, output;
};

void expect(std::span<const Row> rows, const QByteArray &settings = "")
{
    for (const Row &row : rows) {
        const Shell shell(settings);
        const Outcome outcome = shell.run(row.script);
        EXPECT_EQ(outcome.output, QByteArray(row.output).replace("NO SETTINGS", shell.noSettings()))
            << row.what;
        EXPECT_EQ(outcome.errors, "") << row.what;
    }
}

TEST(Fault, OfThePrintFile)
{
    const Row rows[] = {
        {"full device", "run request /dev/full", notWhole + "No space left on device\nstatus 0\n"},
        {"long document on a full device", "run long /dev/full",
         notWhole + "No space left on device\nstatus 0\n"},
        {"disk that fills up", "(ulimit -f 64; run long out); run long all; cmp -n 32768 out all",
         notWhole + "File too large\nstatus 0\nstatus 0\n"},
        {"read-only folder", "mkdir ro; chmod a-w ro; run request ro/out; show ro/out",
         notOpened + "status 0\nmissing\n"},
        {"read-only file", "echo old >out; chmod a-w out; run request out; show out",
         notOpened + "status 0\nold\n"},
        {"folder", "run request .", notOpened + "status 0\n"},
        {"folder that is not there", "run request no/out", notOpened + "status 0\n"},
        // The toolkit itself would complain of the empty name.
        {"no name", "export QT_FATAL_WARNINGS=1; run request ''", notOpened + "status 0\n"},
        {"pipe", "mkfifo pipe; cat pipe >out & run request pipe; wait; show out",
         "status 0\n" + whole},
        {"pipe whose reader goes", "mkfifo pipe; head -c 1 pipe >out & run long pipe; wait",
         notWhole + "Broken pipe\nstatus 0\n"},
        {"far more than the request",
         "{ echo \"<p><method name='printPartialOrder'/><printers name='\"; yes y | head -c "
         "2000000\n"
         "echo \"'/>\"; yes '<headers/>' | head -n 1000; echo '</p>'; } >amplified\n"
         "run amplified /dev/null",
         notWhole + "File too large\nstatus 0\n"},
        {"the request itself", "run request request; show request", "status 0\n"},
    };
    expect(rows);
}

TEST(Fault, OfTheRequest)
{
    const Row rows[] = {
        {"missing", "echo old >out; run missing out; show out", "status 0\n"},
        {"unreadable", "chmod a-r request; run request out; show out", "status 0\n"},
        {"folder", "run . out; show out", "status 0\n"},
        {"endless, no XML", "run /dev/zero out; show out", "status 0\n"},
        {"endless", "{ cat request | head -c 60; yes ' '; } | run /dev/stdin out; show out",
         "status 0\n\nj\n"},
        {"pipe that is fed slowly",
         "mkfifo pipe; iconv -f UTF-8 -t UTF-16 request >utf16\n"
         "{ head -c 1 utf16; sleep 0.2; tail -c +2 utf16; } >pipe & run pipe out; show out",
         "status 0\n" + whole},
        // What is printed is a beginning of the whole, cut between two items.
        {"growing",
         "head -c 3000 long >part; tail -c +3001 long | split -a 3 -b 3000 - piece; run long all\n"
         "for piece in piece*; do cat $piece; done >>part & run part out; wait\n"
         "cmp -n $(wc -c <out) out all",
         "status 0\nstatus 0\n"},
        {"attributes without an end",
         "{ head -c 37 request; echo '<a'; yes \" a=''\"; } | run /dev/stdin out; show out",
         "status 0\n\nj\n"},
        {"100,000 deep",
         "{ head -c 37 request; yes '<a>' | head -n 100000; } >deep; run deep out; show out",
         "status 0\n\nj\n"},
    };
    expect(rows);
}

/// Big requests are printed whole.
TEST(Fault, OfSize)
{
    const Shell shell("zentaro:{doc:{printHeader=true;};};");
    QByteArray attributes;
    for (int i = 0; i < 100'000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    support::writeFile(shell.home.path(u"attributes"_s),
                       start + "<headers" + attributes + "/></p>");
    const QByteArray value(50'000'000, 'y');
    support::writeFile(shell.home.path(u"value"_s),
                       start + "<receipe number='" + value + "'/></p>");
    const Outcome outcome =
        shell.run("run attributes out; grep -c '^\"\"@$' out; tail -n 1 out; run value out");
    EXPECT_EQ(outcome.output, "status 0\n100000\nJ\nstatus 0\n");
    EXPECT_EQ(outcome.errors, "");
    const QByteArray printed = support::readFile(shell.home.path(u"out"_s));
    EXPECT_TRUE(printed == "\nj\n\"" + value + QByteArray(30, ' ') + "\"@\nJ\n") << printed.size();
}

TEST(Fault, OfTheConfiguration)
{
    const QByteArray conf = ".zentaro/conf/zentaro.conf";
    const QByteArray print = "; run request out; show out";
    const Row rows[] = {
        {"no home", "export HOME=/missing" + print,
         "Error in the method FileReader::open( /missing/.zentaro/conf/zentaro.conf ): "
         "File Not Found\nstatus 0\n"
             + whole},
        {"none", "rm " + conf + print, "NO SETTINGSstatus 0\n" + whole},
        {"unreadable", "chmod a-r " + conf + print, "NO SETTINGSstatus 0\n" + whole},
        {"folder", "rm " + conf + "; mkdir " + conf + print, "NO SETTINGSstatus 0\n" + whole},
        {"one line of 10 MB", "yes x | head -c 10000000 | tr -d '\\n' >" + conf + print,
         "status 0\n" + whole},
        {"a value of 10 MB",
         "{ echo 'zentaro:{doc:{paperWidth='; yes 4 | head -c 10000000; } >" + conf + print,
         "status 0\n" + whole},
        {"endless", "ln -sf /dev/zero " + conf + print, "status 0\n" + whole},
        {"100,000 groups deep", "yes 'zentaro:{' | head -n 100000 >" + conf + print,
         "status 0\n" + whole},
        {"10 MB of settings, the one that counts behind them",
         "{ echo 'zentaro:{doc:{'; seq -f 'setting%.0f=value;' 480000; echo 'paperWidth=10;};};'; "
         "} >"
             + conf + print,
         "status 0\n\nj\n\"1 x      \"@\nJ\n"},
    };
    expect(rows);
}

/// Absurd widths cost neither time nor paper: no text is padded to more than 65,535 characters, and
/// what is no width at all counts as none. The sizes are those of an item and of a rule.
TEST(Fault, OfASetting)
{
    const QByteArray script =
        "run request out; wc -c <out; { head -c 37 request; echo '<headers/></p>'; } >rule\n"
        "run rule out; wc -c <out";
    const std::pair<const char *, QByteArray> widths[] = {
        {"2000000000", "status 0\n65546\nstatus 0\n131104\n"},
        {"70000", "status 0\n65546\nstatus 0\n131104\n"},
        {"3000000000", "status 0\n40\nstatus 0\n99\n"},
        {"-2000000000", "status 0\n12\nstatus 0\n51\n"},
    };
    for (const auto &[width, output] : widths) {
        const Row rows[] = {{width, script, output}};
        expect(rows, "zentaro:{doc:{printHeader=true;paperWidth=" + QByteArray(width) + ";};};");
    }
}

/// A killed run leaves a beginning of the document, in pieces of 16 KiB: of a short one nothing,
/// and never anything of what the file held before.
TEST(Fault, OfAKilledProcess)
{
    const QByteArray script = "mkfifo pipe; echo old >out; run long all\n"
                              "\"$P\" pipe out & exec 3>pipe; cat FED >&3; kill -9 $!\n"
                              "wait $! 2>&-; echo $?; cmp -n $(wc -c <out) out all; wc -c <out";
    const Outcome brief = Shell().run(QByteArray(script).replace("FED", "request"));
    EXPECT_EQ(brief.output, "status 0\n137\n0\n");
    const Outcome longer = Shell().run(QByteArray(script).replace("FED", "long"));
    EXPECT_TRUE(longer.output.startsWith("status 0\n137\n")) << longer.output.toStdString();
    EXPECT_GE(longer.output.split('\n').at(2).toInt(), 16'384);
    EXPECT_EQ(brief.errors + longer.errors, "");
}

TEST(Fault, Of200RunsAtOnce)
{
    const Shell shell("zentaro:{doc:{paperWidth=10;};};");
    const Outcome outcome =
        shell.run("for i in $(seq 200); do \"$P\" request out$i & done; wait; cat out*");
    EXPECT_EQ(outcome.output, QByteArray("\nj\n\"1 x      \"@\nJ\n").repeated(200));
    EXPECT_EQ(outcome.errors, "");
}

TEST(Fault, OfTheStandardStreams)
{
    const QByteArray bad = "<p><method name=\"printPartialOrder\"/><method/></p>";
    const QByteArray refused = "File Format Not Supported\n";
    for (const char *closed : {"<&- >&- 2>&-", ">&-", ">/dev/full"}) {
        const Shell shell;
        support::writeFile(shell.home.path(u"bad"_s), bad);
        const Outcome outcome =
            shell.run(QByteArray("\"$P\" bad out ") + closed + "; echo $?; cat out");
        EXPECT_EQ(outcome.output, "0\n\nj\n") << closed;
        EXPECT_EQ(outcome.errors, "") << closed;
    }
    // Whoever reads the diagnostics is gone before there are any.
    for (const char *words : {"", "bad out", "long /dev/full"}) {
        const Shell shell;
        support::writeFile(shell.home.path(u"bad"_s), bad);
        const Outcome outcome = shell.run(QByteArray("{ sleep 0.2; \"$P\" ") + words
                                          + "; echo $? >&2; } | true; sleep 0.3");
        EXPECT_EQ(outcome.errors, "0\n") << words;
    }
}

} // namespace
