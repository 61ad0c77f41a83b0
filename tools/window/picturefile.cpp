// SPDX-License-Identifier: MIT
#include "tools/window/sheetpainter.h"

#include "config/config.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <limits>
#include <span>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// The limits of a picture of pixels: its sides, and its area, a byte for each while it is drawn.
constexpr int MostPixelsOfSide = 32'000;
constexpr qint64 MostPixels = 40'000'000;
constexpr int LeastCellWidth = 3; // pixels, below which nothing can be read

/// The grid of pictures that are no pixels: 40 dots to a millimetre.
constexpr int VectorDpi = 1'016;
constexpr double VectorDotsOfMm = 40;
constexpr int LongestPageMm = 5'000; // readers of PDF show no longer one

constexpr auto NoMemory = "there is no memory for the picture"_L1;

/// Sheets in rows: two that are before and after, else five.
class Picture
{
public:
    /// `alone` is around the paper of a single sheet.
    Picture(std::span<const Sheet> sheets, const PictureOptions &options, int dpi,
            SheetPainter::Frame alone = SheetPainter::Frame::Notes)
        : perRow(options.inPairs ? 2 : 5)
        , columns(std::min(perRow, sheets.size()))
        , rows((sheets.size() + perRow - 1) / perRow)
    {
        const auto frame = sheets.size() > 1 ? SheetPainter::Frame::Title : alone;
        const PaperSize paper{dpi, options.paper.widthMm};
        constexpr int TooHigh = 1'000'000'000; // and no higher, for the sum to remain a number
        painters.reserve(sheets.size());
        for (size_t i = 0; i < sheets.size(); ++i) {
            const QSize sheet = painters.emplace_back(sheets[i], paper, frame).size();
            leastCell = std::min(leastCell, painters.back().cellWidth());
            columns[i % perRow] = std::max(columns[i % perRow], sheet.width());
            rows[i / perRow] = std::max(rows[i / perRow], sheet.height());
        }
        for (const int column : columns)
            size.rwidth() += column;
        for (const int row : rows)
            size.setHeight(std::min(size.height() + row, TooHigh));
    }

    QString faultOfPage() const
    {
        return std::max(size.width(), size.height()) > LongestPageMm * VectorDotsOfMm
                   ? u"a side of the picture would be longer than %1 mm"_s.arg(LongestPageMm)
                   : QString();
    }

    void paint(auto &&painter, const Colours &colours) const
    {
        painter.fillRect(QRect(QPoint(), size), colours.desk.ground);
        QPoint corner;
        for (size_t i = 0; i < painters.size(); ++i) {
            painter.save();
            painter.translate(corner);
            painters[i].paint(painter, colours);
            painter.restore();
            corner.rx() += columns[i % perRow];
            if ((i + 1) % perRow == 0)
                corner = {0, corner.y() + rows[i / perRow]};
        }
    }

    QSize size{0, 0};
    int leastCell = std::numeric_limits<int>::max(); // its width in pixels

private:
    const size_t perRow;
    std::vector<SheetPainter> painters;
    std::vector<int> columns; // the width of each column of sheets, in pixels
    std::vector<int> rows;    // the height of each row
};

QString titleOf(const std::vector<Sheet> &sheets)
{
    QStringList titles;
    for (const Sheet &sheet : sheets)
        titles.append(sheet.title);
    return titles.join("; "_L1);
}

/// Shades of grey that are places in a table of colours: for each ground a stretch that leads from
/// it to its text, as what is painted on it is a mixture of both.
struct Palette
{
    Palette()
    {
        constexpr int Stretch = 64;
        constexpr int Last = Stretch - 2; // and one place between stretches, for the edge
        const auto shade = [](int place) { return QColor(place, place, place); };
        const Colours colours;
        table.fill(colours.edge.rgb(), qsizetype(4) * Stretch);
        shades.edge = shade(Stretch - 1);
        int begin = 0;
        for (const auto member :
             {&Colours::desk, &Colours::paper, &Colours::changed, &Colours::beyond}) {
            const auto &[ground, ink] = colours.*member;
            shades.*member = {shade(begin), shade(begin + Last)};
            for (int i = 0; i <= Last; ++i) {
                const auto mixed = [i](int a, int b) { return (a * (Last - i) + b * i) / Last; };
                table[begin + i] =
                    qRgb(mixed(ground.red(), ink.red()), mixed(ground.green(), ink.green()),
                         mixed(ground.blue(), ink.blue()));
            }
            begin += Stretch;
        }
    }

    Colours shades;
    QList<QRgb> table;
};

QString writePng(const std::vector<Sheet> &sheets, const PictureOptions &options, QBuffer &file)
{
    const Picture picture(sheets, options, options.paper.dpi);
    if (picture.leastCell < LeastCellWidth)
        return u"the characters would be too small to be read: raise --dpi"_s;
    if (std::max(picture.size.width(), picture.size.height()) > MostPixelsOfSide
        || qint64(picture.size.width()) * picture.size.height() > MostPixels)
        return u"the picture would have %1 by %2 pixels, more than %3 at a side or %4 in all: "
               "lower --dpi, or preview less at a time"_s.arg(picture.size.width())
                   .arg(picture.size.height())
                   .arg(MostPixelsOfSide)
                   .arg(MostPixels);
    QImage image(picture.size, QImage::Format_Grayscale8);
    if (image.isNull())
        return NoMemory;
    const Palette palette;
    picture.paint(QPainter(&image), palette.shades);
    image.reinterpretAsFormat(QImage::Format_Indexed8); // a quarter of what colours would take
    image.setColorTable(palette.table);
    const int dotsPerMetre = int(options.paper.dpi * 39.37); // inches
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    constexpr int Quality = 50; // saves half the time, for a file a sixth larger
    return image.save(&file, "PNG", Quality) ? QString() : NoMemory;
}

QString writeSvg(const std::vector<Sheet> &sheets, const PictureOptions &options, QBuffer &file)
{
    const Picture picture(sheets, options, VectorDpi);
    if (QString fault = picture.faultOfPage(); !fault.isEmpty())
        return fault;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(VectorDpi);
    generator.setSize(picture.size);
    generator.setViewBox(QRect(QPoint(), picture.size));
    generator.setTitle(titleOf(sheets));
    picture.paint(QPainter(&generator), {});
    const QByteArray family = monospacedFamily().toUtf8(); // the generator names no other
    file.buffer().replace('"' + family + '"', '"' + family + ", monospace\"");
    return {};
}

/// Each sheet or pair on a page of its own; a sheet that has one for itself is the page.
QString writePdf(const std::vector<Sheet> &sheets, const PictureOptions &options, QBuffer &file)
{
    const size_t perPage = options.inPairs ? 2 : 1;
    QPdfWriter writer(&file);
    writer.setResolution(VectorDpi);
    writer.setTitle(titleOf(sheets));
    writer.setPageMargins(QMarginsF());
    Colours colours;
    colours.desk.ground = Qt::white;
    QPainter painter;
    for (size_t i = 0; i < sheets.size(); i += perPage) {
        const auto row = std::span(sheets).subspan(i, std::min(perPage, sheets.size() - i));
        const Picture picture(row, options, VectorDpi, SheetPainter::Frame::Bare);
        if (QString fault = picture.faultOfPage(); !fault.isEmpty())
            return fault;
        writer.setPageSize(QPageSize(QSizeF(picture.size) / VectorDotsOfMm, QPageSize::Millimeter));
        if (i == 0)
            painter.begin(&writer);
        else
            writer.newPage();
        picture.paint(painter, colours);
    }
    return {};
}

} // namespace

QString writePicture(const std::vector<Sheet> &sheets, const PictureOptions &options)
{
    using Write = QString (*)(const std::vector<Sheet> &, const PictureOptions &, QBuffer &);
    constexpr std::array<std::pair<QLatin1StringView, Write>, 3> formats = {
        {{".png"_L1, writePng}, {".svg"_L1, writeSvg}, {".pdf"_L1, writePdf}}};
    const auto *const format = std::ranges::find_if(formats, [&options](const auto &row) {
        return options.fileName.endsWith(row.first, Qt::CaseInsensitive);
    });
    if (format == formats.end())
        return u"the name of a picture ends in .png, .svg or .pdf"_s;
    if (monospacedFamily().isEmpty())
        return u"there is no monospaced font (Debian has fonts-dejavu-core)"_s;
    if (std::ranges::any_of(sheets,
                            [](const Sheet &sheet) { return sheet.rows.size() > MostRows; }))
        return u"a document has more than %1 lines, the most of a picture"_s.arg(MostRows);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    const QString fault = format->second(sheets, options, file);
    return fault.isEmpty() ? libconfig::replaceFile(options.fileName, file.data()) : fault;
}

} // namespace preview
