// SPDX-License-Identifier: MIT
#include "tools/preview/previewcommand.h"

#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "tools/preview/terminaldrawing.h"
#include "tools/requests/requestfiles.h"
#include "tools/terminal.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextCodec>

#include <unistd.h>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

constexpr int MostColumns = 500;
constexpr int LeastDpi = 50;
constexpr int MostDpi = 1'200;

void addOptions(tools::CommandLine &line)
{
    line.addOption({{u"o"_s, u"output"_s},
                    u"Draws a picture instead: a name that ends in .png, .svg or .pdf."_s,
                    u"PICTURE"_s});
    line.addOption({u"dpi"_s, u"The picture's dots per inch, 203 unless given."_s, u"DPI"_s});
    line.addOption({u"width-mm"_s,
                    u"The paper's width in the picture, 58 or 80 (unless given) millimetres."_s,
                    u"WIDTH"_s});
    line.addOption({u"annotate"_s, u"Shows the line of the request that each line comes from."_s});
    line.addOption({u"columns"_s,
                    u"The characters in a line of the paper; unless given, as the configuration "
                    u"says, or as a print file's first rule is long."_s,
                    u"COLUMNS"_s});
    tools::addConfigurationOption(line);
    line.addOption({u"against"_s,
                    u"Renders the requests with FILE too, and shows only what changes."_s,
                    u"FILE"_s});
    line.addOption({u"diff"_s,
                    u"The form of the changes: unified, or side (by side), which is used unless "
                    u"given where the terminal is wide enough."_s,
                    u"FORM"_s});
    line.addOption({u"encoding"_s,
                    u"The encoding of print files; that of the locale unless given."_s, u"NAME"_s});
}

/// The option's value as a number from `least` to `most`; nothing for another, which is told.
std::optional<int> numberOf(const tools::CommandLine &line, const QString &option, int least,
                            int most)
{
    bool isNumber = false;
    const int number = line.value(option).toInt(&isNumber);
    if (isNumber && number >= least && number <= most)
        return number;
    line.wrongUsage(u"--%1 takes a number from %2 to %3"_s.arg(option).arg(least).arg(most));
    return std::nullopt;
}

/// Reads the options that say how a picture looks; false when they are wrong, which is told.
bool readPictureOptions(const tools::CommandLine &line, Options &options)
{
    options.picture = line.value(u"output"_s);
    if (line.isSet(u"output"_s)) {
        const std::optional<PictureFormat> format = pictureFormatOf(options.picture);
        if (!format) {
            line.wrongUsage("the picture's name ends in .png, .svg or .pdf, not as `"_L1
                            + options.picture + u'`');
            return false;
        }
        options.format = *format;
    }
    if (line.isSet(u"dpi"_s)) {
        const std::optional<int> dpi = numberOf(line, u"dpi"_s, LeastDpi, MostDpi);
        if (!dpi)
            return false;
        options.paper.dpi = *dpi;
    }
    if (line.isSet(u"width-mm"_s)) {
        const QString width = line.value(u"width-mm"_s);
        if (width != "58"_L1 && width != "80"_L1) {
            line.wrongUsage(u"--width-mm is 58 or 80"_s);
            return false;
        }
        options.paper.widthMm = width.toInt();
    }
    return true;
}

/// Reads the other options; false when they are wrong, which is told.
bool readTextOptions(const tools::CommandLine &line, Options &options)
{
    options.annotate = line.isSet(u"annotate"_s);
    options.configuration = line.value(u"config"_s);
    options.other = line.value(u"against"_s);
    options.codec = text::localeCodec();
    if (line.isSet(u"columns"_s)) {
        const std::optional<int> columns = numberOf(line, u"columns"_s, 1, MostColumns);
        if (!columns)
            return false;
        options.columns = *columns;
    }
    if (line.isSet(u"encoding"_s)) {
        options.codec = QTextCodec::codecForName(line.value(u"encoding"_s).toLatin1());
        if (!options.codec) {
            line.wrongUsage("unknown encoding `"_L1 + line.value(u"encoding"_s) + u'`');
            return false;
        }
    }
    if (line.isSet(u"diff"_s)) {
        const QString form = line.value(u"diff"_s);
        if (form != "unified"_L1 && form != "side"_L1) {
            line.wrongUsage(u"--diff is unified or side"_s);
            return false;
        }
        options.sideBySide = form == "side"_L1;
    }
    if (line.isSet(u"against"_s) && options.other.isEmpty()) {
        line.wrongUsage(u"--against takes the name of a configuration"_s);
        return false;
    }
    if (options.annotate && !options.other.isEmpty()) {
        line.wrongUsage(u"--annotate and --against do not go together"_s);
        return false;
    }
    return true;
}

Paper paperOf(const Document &document, const Options &options)
{
    QTextCodec *const codec = document.isRendered ? text::localeCodec() : options.codec;
    return {*document.printFile, codec, document.trace, options.columns};
}

bool drawOnTerminal(const Document &document, const Options &options, Output &output)
{
    qint64 lastLine = 0;
    for (const Trace::Element &element : document.trace.elements)
        lastLine = std::max(lastLine, element.requestLine);
    const TerminalDrawing drawing(text::localeCodec(), lastLine);
    document.printFile->open(QIODevice::ReadOnly);
    Paper paper = paperOf(document, options);
    while (const auto row = paper.next()) {
        if (!output.write(drawing.drawn(*row) + u'\n'))
            return false;
    }
    return true;
}

/// Shows documents one by one.
class Preview
{
public:
    Preview(const tools::Call &call, const Options &options)
        : call(call)
        , options(options)
        , printer(call, options.annotate)
    {
    }

    /// False for trouble, which has been told.
    bool show(const QString &name, const QString &title)
    {
        const std::optional<Document> document = documentOf(name);
        if (!document)
            return false;
        whole = whole && document->isWhole;
        if (!options.picture.isEmpty()) {
            sheets.push_back({QFileInfo(title).fileName(), rowsOf(*document, options), {}});
            return true;
        }
        return (title.isEmpty() || output.write(title + ":\n"_L1))
               && drawOnTerminal(*document, options, output);
    }

    /// The exit status.
    int finish()
    {
        constexpr size_t PerRow = 5;
        const bool good = options.picture.isEmpty()
                              ? output.finish()
                              : writeSheets(call, options, sheets, PerRow) == tools::Fine;
        if (!good)
            return tools::Trouble;
        return whole ? tools::Fine : tools::Findings;
    }

private:
    std::optional<Document> documentOf(const QString &name)
    {
        std::optional<Source> source = readSource(call, name);
        if (!source)
            return std::nullopt;
        if (!source->isRequest && options.annotate) {
            tools::tellTrouble(call, name,
                               u"a print file does not tell the lines of its request"_s);
            return std::nullopt;
        }
        if (source->isRequest && !std::exchange(configured, true)
            && !useConfiguration(call, options, configuration))
            return std::nullopt;
        return printer.print(*source);
    }

    const tools::Call &call;
    const Options &options;
    tools::ConfigurationInUse configuration;
    bool configured = false; // print files need no configuration
    Printer printer;
    Output output;
    std::vector<Sheet> sheets;
    bool whole = true;
};

int previewAll(const tools::Call &call, const Options &options, const QStringList &names)
{
    Preview preview(call, options);
    for (const QString &name : names) {
        if (!preview.show(name, names.size() > 1 ? tools::inOneLine(name) : QString()))
            return tools::Trouble;
    }
    return preview.finish();
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

QString Options::configurationName() const
{
    return configuration.isEmpty() ? ZTConfiguration::userFile() : configuration;
}

bool useConfiguration(const tools::Call &call, const Options &options,
                      tools::ConfigurationInUse &configuration)
{
    if (!configuration.use(call, options.configuration))
        return false;
    if (configuration.isMissing())
        tools::tellTrouble(call, options.configurationName(),
                           u"no such file: every setting has its default"_s);
    return true;
}

bool Output::write(const QString &text)
{
    constexpr int Piece = 64 * 1'024; // characters
    waiting += text;
    return waiting.size() < Piece ? good : finish();
}

bool Output::finish()
{
    good = good && tools::printOut(std::exchange(waiting, {})) == tools::Fine;
    return good;
}

std::vector<Row> rowsOf(const Document &document, const Options &options)
{
    std::vector<Row> rows;
    document.printFile->open(QIODevice::ReadOnly);
    Paper paper = paperOf(document, options);
    while (rows.size() <= PictureLayout::MostRows) {
        std::optional<Row> row = paper.next();
        if (!row)
            break;
        rows.push_back(*std::move(row));
    }
    document.printFile->close();
    return rows;
}

int writeSheets(const tools::Call &call, const Options &options, const std::vector<Sheet> &sheets,
                size_t perRow)
{
    const PictureLayout layout(options.paper, sheets, perRow);
    QString fault = layout.fault();
    if (fault.isEmpty())
        fault = call.desktop->writePicture(layout.picture(), options.picture, options.format);
    if (fault.isEmpty())
        return tools::Fine;
    return tools::tellTrouble(call, options.picture, fault);
}

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
    if (!readPictureOptions(line, options) || !readTextOptions(line, options))
        return tools::Trouble;
    const std::optional<QStringList> names = tools::requestFiles(call, line.arguments());
    if (!names)
        return tools::Trouble;
    if (!options.picture.isEmpty() && !call.desktop)
        return tools::startDesktop(call);
    const auto theApplication = application(call);
    if (!options.other.isEmpty())
        return compareConfigurations(call, options, *names);
    return previewAll(call, options, *names);
}

} // namespace preview
