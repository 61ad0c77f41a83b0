// SPDX-License-Identifier: MIT
#include "tools/preview/preview.h"

#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "text/standardoutput.h"
#include "tools/companion.h"
#include "tools/requests/requests.h"
#include "tools/terminal.h"

#include <QFileInfo>
#include <QTextCodec>

#include <algorithm>
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
    line.addOption(
        {u"dpi"_s, u"The dots per inch of a .png, 203 unless given."_s, u"DPI"_s, u"203"_s});
    line.addOption({u"width-mm"_s,
                    u"The paper's width in the picture, 58 or 80 (unless given) millimetres."_s,
                    u"WIDTH"_s, u"80"_s});
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
    number = line.value(option).toInt(); // 0 for what is none
    return number >= least && number <= most
               ? QString()
               : u"--%1 takes a number from %2 to %3"_s.arg(option).arg(least).arg(most);
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
    options.picture.fileName = line.value(u"output"_s);
    if (line.isSet(u"against"_s) && options.other.isEmpty())
        return u"--against takes the name of a configuration"_s;
    if (line.isSet(u"output"_s) && options.picture.fileName.isEmpty())
        return u"--output takes the name of a picture"_s;
    if (options.picture.fileName.contains(QChar::ReplacementCharacter))
        return u"the name of the picture is not UTF-8"_s;
    if (options.annotate && !options.other.isEmpty())
        return u"--annotate and --against do not go together"_s;
    options.picture.inPairs = !options.other.isEmpty(); // before and after
    options.picture.paper.widthMm = line.value(u"width-mm"_s).toInt();
    if (options.picture.paper.widthMm != 58 && options.picture.paper.widthMm != 80)
        return u"--width-mm is 58 or 80"_s;
    QString mistake = readNumber(line, u"dpi"_s, 50, 1'200, options.picture.paper.dpi);
    if (mistake.isEmpty() && line.isSet(u"columns"_s))
        mistake = readNumber(line, u"columns"_s, 1, MostPaperWidth, options.columns);
    return mistake;
}

/// One call of the command. What answers a bool or nothing has told why it is false or missing.
class Preview
{
public:
    Preview(const tools::Call &call, const Options &options, const tools::RequestFiles &files)
        : status(files.isWhole ? tools::Fine : tools::Trouble)
        , call(call)
        , options(options)
        , names(files.names)
    {
    }

    bool draw();
    int status; ///< so far

private:
    Document documentOf(const Input &input);
    bool show(const QString &name, const Document &document);
    bool compare();
    bool showChange(const QString &name, const Document &before, const Document &after);
    std::vector<Row> rowsOf(const Document &document) const
    {
        return preview::rowsOf(document, options.columns, MostRows + 1); // one where too many
    }
    bool tell(const QString &name, const QString &trouble) const
    {
        return tools::tellTrouble(call, name, trouble) == tools::Fine;
    }
    std::optional<Input> read(const QString &name) const;

    const tools::Call &call;
    const Options &options;
    const QStringList &names;
    const QString first =
        options.configuration.isEmpty() ? ZTConfiguration::userFile() : options.configuration;
    tools::ConfigurationInUse configuration;
    bool isConfigured = false;                        // print files need no configuration
    std::vector<std::pair<Input, Document>> compared; // with the first configuration
    std::vector<Sheet> sheets;                        // of a picture
};

bool Preview::draw()
{
    const bool compares = !options.other.isEmpty();
    for (const QString &name : names) {
        std::optional<Input> input = read(name);
        if (!input) {
            status = tools::Trouble;
            continue;
        }
        Document document = documentOf(*input);
        if (compares)
            compared.emplace_back(*std::move(input), std::move(document));
        else if (!show(name, document))
            return false;
    }
    if (compares && !compare())
        return false;
    if (options.picture.fileName.isEmpty() || sheets.empty())
        return true;
    const QString fault = call.desktop->writePicture(sheets, options.picture);
    return fault.isEmpty() || tell(options.picture.fileName, fault);
}

/// A file that can be drawn as the options say.
std::optional<Input> Preview::read(const QString &name) const
{
    std::optional<Input> input = readInput(call, name);
    if (!input || input->isRequest || (options.other.isEmpty() && !options.annotate))
        return input;
    tell(name, options.annotate ? u"a print file does not tell the lines of its request"_s
                                : u"not a print request, which --against renders anew"_s);
    return std::nullopt;
}

/// The document of a print file, or of a request with the configuration that is in use, which is
/// loaded when the first request comes. What cannot be printed to its end, or prints nothing, is
/// told.
Document Preview::documentOf(const Input &input)
{
    if (input.isRequest && !std::exchange(isConfigured, true)
        && !configuration.use(call, options.configuration))
        tell(first,
             u"no such file: every setting has its default; `zentaro config init` writes one"_s);
    const text::LineSink errors(text::LineSink::toErrors);
    Document document = input.isRequest ? render(input.bytes, options.annotate)
                                        : Document{input.bytes, options.codec, {}, {}};
    if (!document.fault.isEmpty()) {
        tell(input.name, document.fault);
        status = qMax(status, int(tools::Findings));
    }
    if (document.printFile.isEmpty())
        tell(input.name, u"nothing is printed"_s);
    return document;
}

/// On the terminal, or as a sheet of the picture.
bool Preview::show(const QString &name, const Document &document)
{
    constexpr qsizetype PieceSize = 65'536; // characters that are written at once
    if (!options.picture.fileName.isEmpty()) {
        sheets.push_back({QFileInfo(name).fileName(), rowsOf(document), {}});
        return true;
    }
    QString text = names.size() > 1 ? tools::inOneLine(name) + ":\n"_L1 : QString();
    const TerminalDrawing drawing(
        text::localeCodec(), document.origins.empty() ? 0 : document.origins.back().requestLine);
    bool isWritten = true;
    drawRows(document, options.columns, [&](const Row &row) {
        text += drawing.drawn(row) + u'\n';
        if (text.size() > PieceSize)
            isWritten = tools::printOut(std::exchange(text, {})) == tools::Fine;
        return isWritten;
    });
    return isWritten && tools::printOut(text) == tools::Fine;
}

/// Renders the requests with the second configuration too, and shows those that change.
bool Preview::compare()
{
    configuration.use(call, options.other);
    int changes = 0;
    for (const auto &[request, before] : compared) {
        const Document after = documentOf(request);
        if (after.printFile == before.printFile)
            continue;
        ++changes;
        status = qMax(status, int(tools::Findings));
        if (!showChange(request.name, before, after))
            return false;
    }
    return tools::printOut(u"%1 of %2 documents change\n"_s.arg(changes).arg(compared.size()))
           == tools::Fine;
}

/// As text, and as two sheets of the picture.
bool Preview::showChange(const QString &name, const Document &before, const Document &after)
{
    const QString title = QFileInfo(name).fileName() + ", "_L1;
    std::array<Sheet, 2> pair{{{title + QFileInfo(first).fileName(), rowsOf(before), {}},
                               {title + QFileInfo(options.other).fileName(), rowsOf(after), {}}}};
    const bool isColoured = isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR")
                            && qgetenv("TERM") != "dumb";
    const QString line = u"%1 %2\t%3\n"_s;
    QString text = line.arg(u"---"_s, tools::inOneLine(name), tools::inOneLine(first))
                   + line.arg(u"+++"_s, tools::inOneLine(name), tools::inOneLine(options.other))
                   + unifiedDifference(pair[0].rows, pair[1].rows,
                                       TerminalDrawing(text::localeCodec(), 0), isColoured);
    if (std::max(pair[0].rows.size(), pair[1].rows.size()) > MostRows)
        text += u"... only the first %1 lines are shown\n"_s.arg(MostRows);
    markChanges(pair[0], pair[1]);
    std::ranges::move(pair, std::back_inserter(sheets));
    return tools::printOut(text) == tools::Fine;
}

} // namespace

int run(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Shows what the requests or print files FILE will be on paper, in the "
                            u"terminal or in a picture.\nA folder stands for the requests in it, "
                            u"- for standard input."_s);
    addOptions(line);
    line.addPositionalArgument(u"FILE"_s, u"A print request or a print file."_s, u"FILE..."_s);
    line.read(1, -1);
    Options options;
    if (const QString mistake = readOptions(line, options); !mistake.isEmpty())
        line.wrongUsage(mistake);
    if (!options.picture.fileName.isEmpty() && !call.desktop)
        return tools::startDesktop(call);
    // For the translation; for pictures one that draws.
    const auto application = options.picture.fileName.isEmpty()
                                 ? std::make_unique<QCoreApplication>(call.argc, call.argv)
                                 : call.desktop->pictureApplication(call.argv);
    const tools::RequestFiles files = tools::requestFiles(call, line.positionalArguments());
    Preview preview(call, options, files);
    return preview.draw() ? preview.status : tools::Trouble;
}

} // namespace preview
