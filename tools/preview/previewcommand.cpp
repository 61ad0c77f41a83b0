// SPDX-License-Identifier: MIT
#include "tools/preview/preview.h"

#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "text/system.h"
#include "tools/command.h"
#include "tools/terminal.h"

#include <QFileInfo>
#include <QTextCodec>

#include <unistd.h>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

void addOptions(tools::CommandLine &line)
{
    line.addOptions({
        {{u"o"_s, u"output"_s},
         u"Draws a picture instead: a name that ends in .png, .svg or .pdf."_s,
         u"PICTURE"_s},
        {u"dpi"_s, u"The dots per inch of a .png, 203 unless given."_s, u"DPI"_s, u"203"_s},
        {u"width-mm"_s, u"The paper's width in the picture, 58 or 80 (unless given) millimetres."_s,
         u"WIDTH"_s, u"80"_s},
        {u"annotate"_s, u"Shows the line of the request that each line comes from."_s},
        {u"columns"_s,
         u"The characters in a line of the paper; unless given, as the configuration says, or as a "
         u"print file's first rule or longest line is long."_s,
         u"COLUMNS"_s},
    });
    tools::addConfigurationOption(line);
    line.addOption({u"against"_s,
                    u"Renders the requests with FILE too, and shows only what changes."_s,
                    u"FILE"_s});
    line.addOption({u"encoding"_s,
                    u"The encoding of print files; that of the locale unless given."_s, u"NAME"_s});
    line.addPositionalArgument(u"FILE"_s, u"A print request or a print file."_s, u"FILE..."_s);
}

/// A request, and its document with the first configuration.
struct Compared
{
    QString name;
    QByteArray request;
    Document before;
};

/// One call of the command.
class Preview
{
public:
    /// Reads the options; ends the command where one is wrong.
    Preview(const tools::Call &call, const tools::CommandLine &line)
        : call(call)
        , annotates(line.isSet(u"annotate"_s))
        , first(line.value(u"config"_s))
        , second(line.value(u"against"_s))
    {
        const auto number = [&line](const QString &option, int least, int most) {
            const int value = line.value(option).toInt(); // 0 for what is none
            if (value < least || value > most)
                line.wrongUsage(
                    u"--%1 takes a number from %2 to %3"_s.arg(option).arg(least).arg(most));
            return value;
        };
        if (line.isSet(u"encoding"_s))
            codec = QTextCodec::codecForName(line.value(u"encoding"_s).toLatin1());
        if (!codec && line.isSet(u"encoding"_s))
            line.wrongUsage("unknown encoding `"_L1 + line.value(u"encoding"_s) + u'`');
        picture = {line.value(u"output"_s), {}, !second.isEmpty()};
        if (line.isSet(u"against"_s) && second.isEmpty())
            line.wrongUsage(u"--against takes the name of a configuration"_s);
        if (line.isSet(u"output"_s) && picture.fileName.isEmpty())
            line.wrongUsage(u"--output takes the name of a picture"_s);
        if (picture.fileName.contains(QChar::ReplacementCharacter))
            line.wrongUsage(u"the name of the picture is not UTF-8"_s);
        if (annotates && !second.isEmpty())
            line.wrongUsage(u"--annotate and --against do not go together"_s);
        picture.paper.widthMm = line.value(u"width-mm"_s).toInt();
        if (picture.paper.widthMm != 58 && picture.paper.widthMm != 80)
            line.wrongUsage(u"--width-mm is 58 or 80"_s);
        picture.paper.dpi = number(u"dpi"_s, 50, 1'200);
        if (line.isSet(u"columns"_s))
            columns = number(u"columns"_s, 1, MostPaperWidth);
    }

    bool drawsPicture() const { return !picture.fileName.isEmpty(); }
    /// Answers the exit status.
    int draw(const tools::RequestFiles &files)
    {
        status = files.isWhole ? tools::Fine : tools::Trouble;
        const bool compares = !second.isEmpty();
        for (const QString &name : files.names) {
            const std::optional<QByteArray> bytes = read(name);
            if (!bytes) {
                status = tools::Trouble;
                continue;
            }
            const Document document = documentOf(name, *bytes);
            if (compares)
                compared.push_back({name, *bytes, document});
            else
                show(name, document, files.names.size() > 1);
        }
        if (compares)
            compare();
        if (!drawsPicture() || sheets.empty())
            return status;
        const QString fault = call.desktop->writePicture(sheets, picture);
        return fault.isEmpty() ? status : tools::tellTrouble(call, picture.fileName, fault);
    }

private:
    /// A request or print file that can be drawn as the options say; what is wrong with another is
    /// told.
    std::optional<QByteArray> read(const QString &name) const
    {
        constexpr qint64 PieceBytes = 65'536;
        const std::unique_ptr<QFile> file = tools::openedRequest(call, name);
        if (!file)
            return std::nullopt;
        QByteArray bytes;
        for (QByteArray piece(1, ' '); !piece.isEmpty() && bytes.size() <= MostBytes;
             bytes += piece)
            piece = file->read(PieceBytes);
        QString fault;
        if (bytes.size() > MostBytes)
            fault = u"it has more than %1 bytes"_s.arg(MostBytes);
        else if (file->error() != QFile::NoError)
            fault = text::reasonOf(*file);
        else if (annotates && !isRequest(bytes))
            fault = u"a print file does not tell the lines of its request"_s;
        else if (!second.isEmpty() && !isRequest(bytes))
            fault = u"not a print request, which --against renders anew"_s;
        else
            return bytes;
        tools::tellTrouble(call, name, fault);
        return std::nullopt;
    }

    /// The document of a print file, or of a request with the configuration that is in use, which
    /// is loaded when the first request comes. What cannot be printed to its end, or prints
    /// nothing, is told.
    Document documentOf(const QString &name, const QByteArray &bytes)
    {
        const bool renders = isRequest(bytes);
        if (renders && !std::exchange(isConfigured, true)
            && !tools::useConfiguration(call, first, labels))
            tools::tellTrouble(
                call, nameOfFirst(),
                u"no such file: every setting has its default; `zentaro config init` writes one"_s);
        const QScopedValueRollback<std::FILE *> errors(text::diagnostics, stderr);
        Document document = renders ? render(bytes, annotates) : Document{bytes, codec, {}, {}};
        if (!document.fault.isEmpty()) {
            tools::tellTrouble(call, name, document.fault);
            status = qMax(status, int(tools::Findings));
        }
        if (document.printFile.isEmpty())
            tools::tellTrouble(call, name, u"nothing is printed"_s);
        return document;
    }

    /// On the terminal, or as a sheet of the picture.
    void show(const QString &name, const Document &document, bool isOneOfSeveral)
    {
        constexpr qsizetype PieceSize = 65'536; // characters that are written at once
        if (drawsPicture()) {
            sheets.push_back({QFileInfo(name).fileName(), rows(document)});
            return;
        }
        QString text = isOneOfSeveral ? tools::inOneLine(name) + ":\n"_L1 : QString();
        const TerminalDrawing drawing(
            text::localeCodec(),
            document.origins.empty() ? 0 : document.origins.back().requestLine);
        drawRows(document, columns, [&](const Row &row) {
            text += drawing.drawn(row) + u'\n';
            if (text.size() > PieceSize)
                tools::printOut(std::exchange(text, {}));
            return true;
        });
        tools::printOut(text);
    }

    /// Renders the requests with the second configuration too, and shows those that change.
    void compare()
    {
        tools::useConfiguration(call, second, labels);
        int changes = 0;
        for (const auto &[name, request, before] : compared) {
            const Document after = documentOf(name, request);
            if (after.printFile == before.printFile)
                continue;
            ++changes;
            status = qMax(status, int(tools::Findings));
            showChange(name, before, after);
        }
        tools::printOut(u"%1 of %2 documents change\n"_s.arg(changes).arg(compared.size()));
    }

    /// As text, and as two sheets of the picture.
    void showChange(const QString &name, const Document &before, const Document &after)
    {
        const QString title = QFileInfo(name).fileName() + ", "_L1;
        Sheet old{title + QFileInfo(nameOfFirst()).fileName(), rows(before)};
        Sheet changed{title + QFileInfo(second).fileName(), rows(after)};
        markChanges(old.rows, changed.rows);
        const bool isColoured = isatty(STDOUT_FILENO) != 0
                                && qEnvironmentVariableIsEmpty("NO_COLOR")
                                && qgetenv("TERM") != "dumb";
        const QString line = u"%1 %2\t%3\n"_s;
        tools::printOut(line.arg(u"---"_s, tools::inOneLine(name), tools::inOneLine(nameOfFirst()))
                        + line.arg(u"+++"_s, tools::inOneLine(name), tools::inOneLine(second))
                        + unifiedDifference(old.rows, changed.rows,
                                            TerminalDrawing(text::localeCodec(), 0), isColoured));
        if (std::max(old.rows.size(), changed.rows.size()) > MostRows)
            tools::printOut(u"... only the first %1 lines are shown\n"_s.arg(MostRows));
        sheets.push_back(std::move(old));
        sheets.push_back(std::move(changed));
    }

    std::vector<Row> rows(const Document &document) const
    {
        return rowsOf(document, columns, MostRows + 1); // one where too many
    }

    QString nameOfFirst() const { return first.isEmpty() ? ZTConfiguration::userFile() : first; }

    const tools::Call &call;
    const bool annotates;
    const QString first;                     // configuration; empty: the user's own
    const QString second;                    // to compare with; empty: none
    QTextCodec *codec = text::localeCodec(); // of print files; null: UTF-8
    int columns = 0;                         // of the paper; 0: not said
    PictureOptions picture;
    QTranslator labels;
    bool isConfigured = false; // print files need no configuration
    int status = tools::Fine;  // so far
    std::vector<Compared> compared;
    std::vector<Sheet> sheets; // of a picture
};

} // namespace

int run(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Shows what the requests or print files FILE will be on paper, in the "
                            u"terminal or in a picture.\nA folder stands for the requests in it, "
                            u"- for standard input."_s);
    addOptions(line);
    line.read(1, -1);
    std::unique_ptr<QCoreApplication> application; // for the translation
    Preview preview(call, line);
    if (preview.drawsPicture() && !call.desktop)
        return tools::startDesktop(call);
    if (preview.drawsPicture())
        application = call.desktop->pictureApplication(call.argv);
    else
        application = makeApplication(call.argc, call.argv);
    return preview.draw(tools::requestFiles(call, line.positionalArguments()));
}

} // namespace preview
