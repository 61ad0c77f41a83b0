// SPDX-License-Identifier: MIT
#include "tools/preview/previewcommand.h"

#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "text/standardoutput.h"
#include "tools/companion.h"
#include "tools/preview/difference.h"
#include "tools/preview/document.h"
#include "tools/requests/requests.h"
#include "tools/terminal.h"

#include <QFileInfo>
#include <QTextCodec>

#include <array>
#include <unistd.h>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// What the options of a call say.
struct Options
{
    int columns = 0;             ///< of the paper; 0: not said
    QTextCodec *codec = nullptr; ///< of print files; null: UTF-8
    bool annotate = false;
    QString configuration; ///< empty: the user's own
    QString other;         ///< the configuration to compare with; empty: none
    PictureOptions picture;
};

void addOptions(tools::CommandLine &line)
{
    line.addOption({{u"o"_s, u"output"_s},
                    u"Draws a picture instead: a name that ends in .png, .svg or .pdf."_s,
                    u"PICTURE"_s});
    line.addOption({u"dpi"_s, u"The dots per inch of a .png, 203 unless given."_s, u"DPI"_s});
    line.addOption({u"width-mm"_s,
                    u"The paper's width in the picture, 58 or 80 (unless given) millimetres."_s,
                    u"WIDTH"_s});
    line.addOption({u"annotate"_s, u"Shows the line of the request that each line comes from."_s});
    line.addOption({u"columns"_s,
                    u"The characters in a line of the paper; unless given, as the configuration "
                    u"says, or as a print file's first rule or longest line is long."_s,
                    u"COLUMNS"_s});
    tools::addConfigurationOption(line);
    line.addOption({u"against"_s,
                    u"Renders the requests with FILE too, and shows only what changes."_s,
                    u"FILE"_s});
    line.addOption({u"encoding"_s,
                    u"The encoding of print files; that of the locale unless given."_s, u"NAME"_s});
}

/// Reads an option that is a number from `least` to `most`. Answers what is wrong with it.
QString readNumber(const tools::CommandLine &line, const QString &option, int least, int most,
                   int &number)
{
    bool isNumber = true;
    if (line.isSet(option))
        number = line.value(option).toInt(&isNumber);
    if (isNumber && (!line.isSet(option) || (number >= least && number <= most)))
        return {};
    return u"--%1 takes a number from %2 to %3"_s.arg(option).arg(least).arg(most);
}

/// Reads all options. Answers what is wrong with them, and an empty text when nothing is.
QString readOptions(const tools::CommandLine &line, Options &options)
{
    options.annotate = line.isSet(u"annotate"_s);
    options.configuration = line.value(u"config"_s);
    options.other = line.value(u"against"_s);
    options.codec = text::localeCodec();
    if (line.isSet(u"encoding"_s)) {
        options.codec = QTextCodec::codecForName(line.value(u"encoding"_s).toLatin1());
        if (!options.codec)
            return "unknown encoding `"_L1 + line.value(u"encoding"_s) + u'`';
    }
    if (line.isSet(u"against"_s) && options.other.isEmpty())
        return u"--against takes the name of a configuration"_s;
    if (options.annotate && !options.other.isEmpty())
        return u"--annotate and --against do not go together"_s;
    options.picture.fileName = line.value(u"output"_s);
    const QString width = line.value(u"width-mm"_s);
    if (line.isSet(u"width-mm"_s) && width != "58"_L1 && width != "80"_L1)
        return u"--width-mm is 58 or 80"_s;
    options.picture.paper.widthMm = width == "58"_L1 ? 58 : 80;
    const QString mistake = readNumber(line, u"dpi"_s, 50, 1'200, options.picture.paper.dpi);
    return mistake.isEmpty() ? readNumber(line, u"columns"_s, 1, MostPaperWidth, options.columns)
                             : mistake;
}

/// The print runs of a call: one with each configuration.
class Runs
{
public:
    Runs(const tools::Call &call, const Options &options)
        : call(call)
        , options(options)
    {
    }

    /// The exit status so far.
    int status = tools::Fine;

    /// The document of a print file, or of a request with the first configuration, which is loaded
    /// when the first request comes. What cannot be printed to its end, or prints nothing, is told.
    /// Nothing for a configuration that cannot be read, which is told.
    std::optional<Document> documentOf(const Input &input)
    {
        if (!input.isRequest)
            return checked(input, {input.bytes, options.codec, {}, {}});
        if (!std::exchange(configured, true) && !useFirst())
            return std::nullopt;
        const text::LineSink errors(text::LineSink::toErrors);
        return checked(input, render(input.bytes, options.annotate));
    }
    /// From now on, requests are printed with the second configuration; false when it cannot be
    /// read, which is told.
    bool useSecond() { return configuration.use(call, options.other); }
    QString nameOfFirst() const
    {
        return options.configuration.isEmpty() ? ZTConfiguration::userFile()
                                               : options.configuration;
    }

private:
    bool useFirst()
    {
        if (!configuration.use(call, options.configuration))
            return false;
        if (configuration.isMissing())
            tools::tellTrouble(call, nameOfFirst(),
                               u"no such file: every setting has its default; `zentaro config "
                               "init` writes one"_s);
        return true;
    }

    Document checked(const Input &input, Document document)
    {
        if (!document.fault.isEmpty()) {
            tools::tellTrouble(call, input.name, document.fault);
            status = tools::Findings;
        }
        if (document.printFile.isEmpty())
            tools::tellTrouble(call, input.name, u"nothing is printed"_s);
        return document;
    }

    const tools::Call &call;
    const Options &options;
    tools::ConfigurationInUse configuration;
    bool configured = false; // print files need no configuration
};

int drawOnTerminal(const Document &document, const Options &options)
{
    constexpr qsizetype PieceSize = 65'536; // characters that are written at once
    const TerminalDrawing drawing(
        text::localeCodec(), document.origins.empty() ? 0 : document.origins.back().requestLine);
    QString text;
    int status = tools::Fine;
    drawRows(document, options.columns, [&](const Row &row) {
        text += drawing.drawn(row) + u'\n';
        if (text.size() > PieceSize)
            status = tools::printOut(std::exchange(text, {}));
        return status == tools::Fine;
    });
    return status == tools::Fine ? tools::printOut(text) : status;
}

/// The rows that a picture may have, and one more where there are too many.
std::vector<Row> rowsOf(const Document &document, const Options &options)
{
    return rowsOf(document, options.columns, MostRows + 1);
}

/// Draws the sheets into the file that the options name, unless there is none; Fine, or Trouble,
/// which is told.
int drawPicture(const tools::Call &call, const Options &options, const std::vector<Sheet> &sheets)
{
    if (options.picture.fileName.isEmpty() || sheets.empty())
        return tools::Fine;
    const auto isTooLong = [](const Sheet &sheet) { return sheet.rows.size() > MostRows; };
    const QString fault =
        std::ranges::any_of(sheets, isTooLong)
            ? u"a document has more than %1 lines, the most of a picture"_s.arg(MostRows)
            : call.desktop->writePicture(sheets, options.picture);
    return fault.isEmpty() ? tools::Fine
                           : tools::tellTrouble(call, options.picture.fileName, fault);
}

int previewAll(const tools::Call &call, const Options &options, const QStringList &names)
{
    Runs runs(call, options);
    std::vector<Sheet> sheets;
    for (const QString &name : names) {
        const std::optional<Input> input = readInput(call, name);
        if (!input)
            return tools::Trouble;
        if (!input->isRequest && options.annotate)
            return tools::tellTrouble(call, name,
                                      u"a print file does not tell the lines of its request"_s);
        const std::optional<Document> document = runs.documentOf(*input);
        if (!document)
            return tools::Trouble;
        if (!options.picture.fileName.isEmpty()) {
            sheets.push_back({QFileInfo(name).fileName(), rowsOf(*document, options), {}});
            continue;
        }
        if ((names.size() > 1 && tools::printOut(tools::inOneLine(name) + ":\n"_L1) != tools::Fine)
            || drawOnTerminal(*document, options) != tools::Fine)
            return tools::Trouble;
    }
    return drawPicture(call, options, sheets) == tools::Fine ? runs.status : tools::Trouble;
}

bool isColoured()
{
    return isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR")
           && qgetenv("TERM") != "dumb";
}

/// Reads all requests; nothing when one is none or cannot be read, which is told.
std::optional<std::vector<Input>> readRequests(const tools::Call &call, const QStringList &names)
{
    std::vector<Input> requests;
    for (const QString &name : names) {
        std::optional<Input> input = readInput(call, name);
        if (!input)
            return std::nullopt;
        if (!input->isRequest) {
            tools::tellTrouble(call, name, u"not a print request, which --against renders anew"_s);
            return std::nullopt;
        }
        requests.push_back(*std::move(input));
    }
    return requests;
}

/// Shows a document that changes, as text; adds both sheets for a picture.
int showChange(const QString &name, const std::array<QString, 2> &configurations,
               std::array<Sheet, 2> pair, std::vector<Sheet> &sheets)
{
    auto &[before, after] = pair;
    const TerminalDrawing drawing(text::localeCodec(), 0);
    QString text;
    for (const size_t i : {0, 1}) {
        text += (i == 0 ? "--- "_L1 : "+++ "_L1) + tools::inOneLine(name) + u'\t'
                + tools::inOneLine(configurations[i]) + u'\n';
        pair[i].title =
            QFileInfo(name).fileName() + ", "_L1 + QFileInfo(configurations[i]).fileName();
    }
    text += unifiedDifference(before.rows, after.rows, drawing, isColoured());
    if (std::max(before.rows.size(), after.rows.size()) > MostRows)
        text += u"... only the first %1 lines are shown\n"_s.arg(MostRows);
    markChanges(before, after);
    sheets.insert(sheets.end(), {std::move(before), std::move(after)});
    return tools::printOut(text);
}

/// Renders the requests under both configurations and shows those that change.
int compareAll(const tools::Call &call, Options options, const QStringList &names)
{
    options.picture.inPairs = true; // before and after
    const std::optional<std::vector<Input>> requests = readRequests(call, names);
    if (!requests)
        return tools::Trouble;
    Runs runs(call, options);
    std::vector<Document> documents;
    for (const Input &request : *requests) {
        std::optional<Document> document = runs.documentOf(request);
        if (!document)
            return tools::Trouble;
        documents.push_back(*std::move(document));
    }
    if (!runs.useSecond())
        return tools::Trouble;
    std::vector<Sheet> sheets;
    int changes = 0;
    for (size_t i = 0; i < documents.size(); ++i) {
        const std::optional<Document> after = runs.documentOf((*requests)[i]);
        if (!after)
            return tools::Trouble;
        if (after->printFile == documents[i].printFile)
            continue;
        ++changes;
        if (showChange(
                (*requests)[i].name, {runs.nameOfFirst(), options.other},
                {{{{}, rowsOf(documents[i], options), {}}, {{}, rowsOf(*after, options), {}}}},
                sheets)
            != tools::Fine)
            return tools::Trouble;
    }
    if (tools::printOut(u"%1 of %2 documents change\n"_s.arg(changes).arg(documents.size()))
            != tools::Fine
        || drawPicture(call, options, sheets) != tools::Fine)
        return tools::Trouble;
    return changes > 0 ? tools::Findings : runs.status;
}

/// The toolkit's remarks about the machine are not the user's affair; why it gives up is, and then
/// the process ends in the usual way.
void tellWhenFatal(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtFatalMsg)
        return;
    tools::printError("zentaro preview: "_L1 + message + u'\n');
    _exit(tools::Trouble);
}

/// An application object for the translation, and for pictures one that draws. It gets no words of
/// the command line: they are this program's.
std::unique_ptr<QCoreApplication> application(const tools::Call &call)
{
    static int count = 1;
    qInstallMessageHandler(tellWhenFatal);
    if (call.desktop)
        return call.desktop->pictureApplication(count, call.argv);
    return std::make_unique<QCoreApplication>(count, call.argv);
}

} // namespace

int run(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Shows what the requests or print files FILE will be on paper, in the "
                            u"terminal or in a picture.\nA folder stands for the requests in it, "
                            u"- for standard input."_s);
    addOptions(line);
    line.addArgument(u"FILE"_s, u"A print request or a print file."_s, u"FILE..."_s);
    if (const auto done = line.read(1, -1))
        return *done;
    Options options;
    if (const QString mistake = readOptions(line, options); !mistake.isEmpty())
        return line.wrongUsage(mistake);
    const auto [names, isWhole] = tools::requestFiles(call, line.arguments());
    if (!isWhole)
        return tools::Trouble;
    if (!options.picture.fileName.isEmpty() && !call.desktop)
        return tools::startDesktop(call);
    const auto theApplication = application(call);
    return options.other.isEmpty() ? previewAll(call, options, names)
                                   : compareAll(call, options, names);
}

} // namespace preview
