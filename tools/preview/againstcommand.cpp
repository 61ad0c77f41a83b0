// SPDX-License-Identifier: MIT
#include "tools/preview/previewcommand.h"

#include "text/localeencoding.h"
#include "tools/preview/differencetext.h"
#include "tools/terminal.h"

#include <QFileInfo>

#include <sys/ioctl.h>
#include <unistd.h>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// A request's print files under both configurations.
struct Comparison
{
    Source source;
    Document before;
    Document after;
};

/// Reads all requests; nothing when one is none or cannot be read, which is told.
std::optional<std::vector<Comparison>> readRequests(const tools::Call &call,
                                                    const QStringList &names)
{
    std::vector<Comparison> comparisons;
    for (const QString &name : names) {
        std::optional<Source> source = readSource(call, name);
        if (!source)
            return std::nullopt;
        if (!source->isRequest) {
            tools::tellTrouble(call, name, u"not a print request, which --against renders anew"_s);
            return std::nullopt;
        }
        comparisons.push_back({*std::move(source), {}, {}});
    }
    return comparisons;
}

/// Prints all requests into one member of their comparisons.
bool printAll(Printer &printer, std::vector<Comparison> &comparisons, Document Comparison::*member)
{
    for (Comparison &comparison : comparisons) {
        std::optional<Document> document = printer.print(comparison.source);
        if (!document)
            return false;
        comparison.*member = *std::move(document);
    }
    return true;
}

bool isChanged(const Comparison &comparison)
{
    constexpr int Piece = 64 * 1'024;
    QIODevice &before = *comparison.before.printFile;
    QIODevice &after = *comparison.after.printFile;
    before.open(QIODevice::ReadOnly);
    after.open(QIODevice::ReadOnly);
    bool equal = before.size() == after.size();
    while (equal && !before.atEnd())
        equal = before.read(Piece) == after.read(Piece);
    before.close();
    after.close();
    return !equal;
}

/// The columns of the terminal at standard output; 0 where there is none.
int terminalColumns()
{
    winsize size{};
    const bool known = isatty(STDOUT_FILENO) != 0 && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0;
    return known ? size.ws_col : 0;
}

QString differenceText(const PaperPair &papers, const Options &options)
{
    const TerminalDrawing drawing(text::localeCodec(), 0);
    if (options.sideBySide == false)
        return unifiedDifference(papers, drawing);
    const QString both = sideBySide(papers, drawing);
    qsizetype width = 0;
    for (const QStringView line : QStringView(both).split(u'\n'))
        width = std::max(width, line.size());
    const bool fits = options.sideBySide == true || width <= terminalColumns();
    return fits ? both : unifiedDifference(papers, drawing);
}

/// The sheets of a changed document, with the rows marked that differ.
void addSheets(std::vector<Sheet> &sheets, PaperPair papers, const QString &name,
               const Options &options)
{
    const QString title = QFileInfo(name).fileName() + ", "_L1;
    Sheet before{title + QFileInfo(options.configurationName()).fileName(), {}, {}};
    Sheet after{title + QFileInfo(options.other).fileName(), {}, {}};
    before.changed.resize(papers.before.size());
    after.changed.resize(papers.after.size());
    for (const RowPair &pair : pairedRows(papers.before, papers.after)) {
        if (!pair.equal && pair.before >= 0)
            before.changed[size_t(pair.before)] = true;
        if (!pair.equal && pair.after >= 0)
            after.changed[size_t(pair.after)] = true;
    }
    before.rows = std::move(papers.before);
    after.rows = std::move(papers.after);
    sheets.push_back(std::move(before));
    sheets.push_back(std::move(after));
}

QString headingOf(const Comparison &comparison, const Options &options)
{
    const QString name = tools::inOneLine(comparison.source.name);
    return "--- "_L1 + name + "\t"_L1 + tools::inOneLine(options.configurationName()) + "\n+++ "_L1
           + name + "\t"_L1 + tools::inOneLine(options.other) + u'\n';
}

/// Shows the documents that change.
class Report
{
public:
    Report(const tools::Call &call, const Options &options)
        : call(call)
        , options(options)
    {
    }

    void add(const Comparison &comparison)
    {
        ++documents;
        whole = whole && comparison.before.isWhole && comparison.after.isWhole;
        if (!isChanged(comparison))
            return;
        ++changes;
        PaperPair papers{rowsOf(comparison.before, options), rowsOf(comparison.after, options)};
        output.write(headingOf(comparison, options) + differenceText(papers, options));
        if (std::max(papers.before.size(), papers.after.size()) > PictureLayout::MostRows)
            output.write(u"... only the first %1 lines are shown\n"_s.arg(PictureLayout::MostRows));
        if (!options.picture.isEmpty())
            addSheets(sheets, std::move(papers), comparison.source.name, options);
    }

    /// The exit status.
    int finish()
    {
        constexpr size_t PerRow = 2; // before and after
        output.write(u"%1 of %2 documents change\n"_s.arg(changes).arg(documents));
        if (!output.finish())
            return tools::Trouble;
        if (!sheets.empty() && writeSheets(call, options, sheets, PerRow) != tools::Fine)
            return tools::Trouble;
        return changes > 0 || !whole ? tools::Findings : tools::Fine;
    }

private:
    const tools::Call &call;
    const Options &options;
    Output output;
    std::vector<Sheet> sheets;
    int documents = 0;
    int changes = 0;
    bool whole = true;
};

} // namespace

int compareConfigurations(const tools::Call &call, const Options &options, const QStringList &names)
{
    std::optional<std::vector<Comparison>> comparisons = readRequests(call, names);
    if (!comparisons)
        return tools::Trouble;
    tools::ConfigurationInUse configuration;
    Printer printer(call, false);
    if (!useConfiguration(call, options, configuration)
        || !printAll(printer, *comparisons, &Comparison::before))
        return tools::Trouble;
    if (!configuration.use(call, options.other)
        || !printAll(printer, *comparisons, &Comparison::after))
        return tools::Trouble;
    Report report(call, options);
    for (const Comparison &comparison : *comparisons)
        report.add(comparison);
    return report.finish();
}

} // namespace preview
