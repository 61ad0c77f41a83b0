// SPDX-License-Identifier: MIT
#include "tools/window/picturefile.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QRawFont>
#include <QSaveFile>

#include <map>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// Without any font the toolkit still lists some, all of whose characters are boxes: those have no
/// tables.
bool isUsable(const QString &family)
{
    return !QRawFont::fromFont(QFont(family)).fontTable("cmap").isEmpty();
}

/// The family that pictures are written in; empty when there is none.
QString monospacedFamily()
{
    const QStringList present = QFontDatabase::families();
    for (const auto family : {"DejaVu Sans Mono"_L1, "Liberation Mono"_L1}) {
        if (present.contains(family) && isUsable(family))
            return family;
    }
    for (const QString &family : present) {
        if (QFontDatabase::isFixedPitch(family) && isUsable(family))
            return family;
    }
    return {};
}

/// Writes characters into cells of one width.
class CellWriter
{
public:
    CellWriter(const QString &family, int cellWidth, QPaintDevice *device)
        : cellWidth(cellWidth)
        , font(family)
        , metrics(sized(device))
    {
    }

    void write(QPainter &painter, const Run &run)
    {
        painter.setFont(font);
        painter.setPen(QColor(colourOf(run.tone)));
        const double above = (2 * cellWidth - metrics.ascent() - metrics.descent()) / 2;
        QPointF at(run.at.x(), run.at.y() + above + metrics.ascent());
        for (const char32_t c : run.text) {
            writeCharacter(painter, at, c);
            at.rx() += cellWidth;
        }
    }

private:
    /// The font whose characters are as wide as the cell; its metrics on the device.
    QFontMetricsF sized(QPaintDevice *device)
    {
        constexpr int Large = 1'000;
        font.setStyleStrategy(
            QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setPixelSize(Large);
        const double advance = QFontMetricsF(font, device).horizontalAdvance(u'0');
        font.setPixelSize(std::max(int(Large * cellWidth / std::max(advance, 1.0)), 1));
        return {font, device};
    }

    /// A character that is wider than its cell is squeezed, one that is narrower is centred.
    void writeCharacter(QPainter &painter, QPointF at, char32_t c)
    {
        if (c == U' ')
            return;
        const bool isMissing = drawable(c) != c && !metrics.inFontUcs4(drawable(c));
        const QString text = isMissing ? QString(QChar::ReplacementCharacter) : textOf({&c, 1});
        if (!advances.contains(c))
            advances.insert(c, metrics.horizontalAdvance(text));
        const double advance = advances.value(c);
        if (advance <= cellWidth + 0.5) {
            painter.drawText(at + QPointF((cellWidth - advance) / 2, 0), text);
            return;
        }
        painter.save();
        painter.translate(at);
        painter.scale(cellWidth / advance, 1);
        painter.drawText(QPointF(), text);
        painter.restore();
    }

    double cellWidth;
    QFont font;
    QFontMetricsF metrics;
    QHash<char32_t, double> advances;
};

void paint(const Picture &picture, const QString &family, QPaintDevice *device)
{
    QPainter painter(device);
    for (const Box &box : picture.boxes)
        painter.fillRect(box.place, QColor(colourOf(box.tone)));
    std::map<int, CellWriter> writers;
    for (const Run &run : picture.runs) {
        const auto [writer, isNew] =
            writers.try_emplace(run.cellWidth, family, run.cellWidth, device);
        writer->second.write(painter, run);
    }
}

bool writePng(const Picture &picture, const QString &family, QIODevice &file)
{
    constexpr double InchesOfMetre = 39.37;
    QImage image(picture.size, QImage::Format_RGB32);
    if (image.isNull())
        return false;
    image.setDotsPerMeterX(int(picture.dpi * InchesOfMetre));
    image.setDotsPerMeterY(int(picture.dpi * InchesOfMetre));
    paint(picture, family, &image);
    return image.save(&file, "PNG");
}

bool writePdf(const Picture &picture, const QString &family, QIODevice &file)
{
    constexpr double MillimetresOfInch = 25.4;
    QPdfWriter writer(&file);
    writer.setResolution(picture.dpi);
    writer.setPageSize(
        QPageSize(QSizeF(picture.size) * MillimetresOfInch / picture.dpi, QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    paint(picture, family, &writer);
    return true;
}

} // namespace

QString writePicture(const Picture &picture, const QString &fileName, PictureFormat format)
{
    const QString family = format == PictureFormat::Svg ? QString() : monospacedFamily();
    if (format != PictureFormat::Svg && family.isEmpty())
        return u"there is no monospaced font (Debian has fonts-dejavu-core)"_s;
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    bool written = true;
    switch (format) {
    case PictureFormat::Png:
        written = writePng(picture, family, file);
        break;
    case PictureFormat::Svg: {
        const QByteArray svg = svgOf(picture);
        written = file.write(svg) == svg.size();
        break;
    }
    case PictureFormat::Pdf:
        written = writePdf(picture, family, file);
        break;
    }
    if (!written)
        file.cancelWriting();
    return file.commit() ? QString() : file.errorString();
}

} // namespace preview
