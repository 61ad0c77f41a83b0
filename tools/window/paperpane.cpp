// SPDX-License-Identifier: MIT
#include "tools/window/paperpane.h"

#include "app/syncsingleton.h"
#include "app/translation.h"
#include "config/configviews.h"
#include "render/vocabulary.h"
#include "text/localeencoding.h"
#include "text/system.h"
#include "tools/check/elementtable.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QListView>
#include <QPaintEvent>
#include <QScrollBar>
#include <QXmlStreamReader>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// The group of the settings that a document method prints with.
QString groupOf(const DocumentMethod &method)
{
    return tools::groupOf(
        *std::ranges::find(documentTypes, method.settingsType, &DocumentType::name));
}

/// The groups whose settings a request is printed with.
QStringList groupsOfRequest(const QByteArray &request)
{
    QStringList groups;
    QXmlStreamReader reader(request);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != element::method)
            continue;
        if (const auto *const method = documentMethod(reader.attributes().value(u"name"_s)))
            groups.append(groupOf(*method));
    }
    groups.removeDuplicates();
    return groups;
}

/// Other values to try for a setting.
QStringList otherValues(const Setting &setting, const QString &value)
{
    if (setting.kind == SettingKind::Switch)
        return {value == "true"_L1 ? u"false"_s : u"true"_s};
    if (setting.kind != SettingKind::Number)
        return {};
    const int number = value.toInt();
    return {QString::number(number + 1), QString::number(number > 1 ? 1 : number + 2)};
}

} // namespace

PaperPane::PaperPane(ConfigTree &tree)
    : tree(tree)
    , documents(new QComboBox)
    , widths(new QComboBox)
    , view(new QListView)
    , remark(new QLabel)
{
    constexpr int MarkedFor = 1'500; // milliseconds
    fading.setSingleShot(true);
    fading.setInterval(MarkedFor);
    connect(&fading, &QTimer::timeout, this, [this] {
        for (preview::Row &row : sheet.rows)
            row.isChanged = false;
        settled = sheet.rows;
        view->viewport()->update();
    });
    addSamples();
    for (const int width : {80, 58})
        widths->addItem(tr("%1 mm").arg(width), width);
    view->setObjectName("paper"_L1);
    view->setModel(&places);
    view->setEditTriggers(QListView::NoEditTriggers);
    view->setVerticalScrollMode(QListView::ScrollPerPixel);
    view->setHorizontalScrollMode(QListView::ScrollPerPixel);
    view->viewport()->installEventFilter(this);
    QPalette desk = view->palette();
    desk.setColor(QPalette::Base, preview::Colours().desk.ground);
    view->setPalette(desk);
    remark->setWordWrap(true);
    remark->setTextFormat(Qt::PlainText);
    documents->setAccessibleName(tr("Document"));
    widths->setAccessibleName(tr("Paper"));

    auto *const choices = new QHBoxLayout;
    choices->addWidget(documents, 1);
    choices->addWidget(widths);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(choices);
    layout->addWidget(view, 1);
    layout->addWidget(remark);

    connect(documents, &QComboBox::currentIndexChanged, this, &PaperPane::chooseDocument);
    connect(widths, &QComboBox::currentIndexChanged, this, [this] {
        paper.widthMm = widths->currentData().toInt();
        layOut();
    });
    for (const auto chosen : {&QListView::clicked, &QListView::activated})
        connect(view, chosen, this, [this](const QModelIndex &at) { explain(size_t(at.row())); });
    chooseDocument();
}

/// The samples, in the order of the methods.
void PaperPane::addSamples()
{
    for (size_t i = 0; i < documentMethods.size(); ++i) {
        const QLatin1StringView method = documentMethods[i].name;
        const QLatin1StringView summary = requestcheck::summaryOf(qsizetype(i));
        documents->addItem(QCoreApplication::translate("Document", summary.data()),
                           ":/samples/"_L1 + method + ".xml"_L1);
        documents->setItemData(int(i), QString(method), Qt::ToolTipRole);
    }
    documents->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void PaperPane::chooseDocument()
{
    QFile file(documents->currentData().toString());
    request = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    groups = groupsOfRequest(request);
    settled.clear();
    if (tree.fileItem())
        draw();
}

QString PaperPane::openRequest(const QString &path)
{
    constexpr qint64 MostBytes = qint64(1'024) * 1'024; // it is printed at every key stroke
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return text::reasonOf(file);
    if (file.size() > MostBytes)
        return tr("It has more than 1 MiB.");
    if (!preview::isRequest(file.readAll()))
        return tr("It is not a print request.");
    int index = documents->findData(path);
    if (index < 0) {
        index = documents->count();
        documents->addItem(QFileInfo(path).fileName(), path);
    }
    documents->setCurrentIndex(index);
    chooseDocument(); // anew, where it was shown before
    return {};
}

void PaperPane::follow(const QString &group)
{
    const auto method = std::ranges::find(documentMethods, group, groupOf);
    if (documents->currentIndex() < int(documentMethods.size()) && !groups.contains(group)
        && method != documentMethods.end())
        documents->setCurrentIndex(int(method - documentMethods.begin()));
}

void PaperPane::zoomBy(double factor)
{
    constexpr int LeastDpi = 40;
    constexpr int MostDpi = 400;
    paper.dpi = std::clamp(int(paper.dpi * factor), LeastDpi, MostDpi);
    layOut();
}

/// Makes a place for each row of the sheet.
void PaperPane::layOut()
{
    places.setRowCount(int(sheet.rows.size()));
    painter.emplace(sheet, paper, preview::SheetPainter::Frame::Bare);
    view->setGridSize({painter->size().width(), 2 * painter->cellWidth()});
    view->viewport()->update();
}

/// Paints the sheet in the view, and a frame around the current row.
bool PaperPane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint)
        return QWidget::eventFilter(watched, event);
    QPainter canvas(view->viewport());
    canvas.setClipRect(static_cast<QPaintEvent *>(event)->rect());
    const QSize size = painter->size();
    canvas.translate(
        qMax((view->viewport()->width() - size.width()) / 2, -view->horizontalScrollBar()->value()),
        -view->verticalScrollBar()->value());
    painter->paint(canvas, {});
    const int height = 2 * painter->cellWidth();
    if (const QModelIndex current = view->currentIndex(); current.isValid())
        canvas.drawRect(0, current.row() * height, size.width() - 1, height - 1);
    return true;
}

/// The request as the present settings print it; what is wrong with it stands below the paper.
std::vector<preview::Row> PaperPane::printed()
{
    const QScopedValueRollback<std::FILE *> quiet(text::diagnostics, nullptr); // the remark tells
    SyncSingleton<ZTConfiguration>::instance_pointer = &configuration;
    configuration.loadListView(&tree);
    const QString present = configuration.getStrValue(u"zentaro.language.basedir"_s) + u'\n'
                            + configuration.getStrValue(u"zentaro.language.file"_s);
    if (present != std::exchange(language, present)) {
        QCoreApplication::removeTranslator(&labels);
        if (loadTranslation(labels, configuration))
            QCoreApplication::installTranslator(&labels);
    }
    const preview::Document document = preview::render(request, false);
    SyncSingleton<ZTConfiguration>::instance_pointer = nullptr;
    remark->setText(document.fault);
    return preview::rowsOf(document, 0, preview::MostRows);
}

void PaperPane::draw()
{
    sheet.rows = printed();
    if (settled.empty())
        settled = sheet.rows; // of another document
    else
        preview::markChanges(settled, sheet.rows);
    layOut();
    fading.start();
}

bool PaperPane::shapes(QTreeWidgetItem *item, std::vector<preview::Row> &rows, size_t row)
{
    const Setting *const setting = tree.settingOf(item);
    const QString text = item->text(0);
    const auto [key, value] = libconfig::settingOf(text);
    for (const QString &other : setting ? otherValues(*setting, value) : QStringList()) {
        item->setText(0, libconfig::settingText(key, other));
        std::vector<preview::Row> others = printed();
        item->setText(0, text);
        preview::markChanges(rows, others);
        if (row < rows.size() && rows[row].isChanged)
            return true;
    }
    return false;
}

/// Shades the settings of which another value prints the row otherwise.
void PaperPane::explain(size_t row)
{
    QList<QTreeWidgetItem *> shaping;
    QStringList names;
    std::vector<preview::Row> rows = printed();
    for (const QTreeWidgetItem *const group : tree.groups()) {
        if (!groups.contains(group->text(0)))
            continue;
        for (int i = 0; i < group->childCount(); ++i) {
            if (!shapes(group->child(i), rows, row))
                continue;
            shaping.append(group->child(i));
            names.append(tree.settingOf(shaping.last())->word);
            tree.scrollToItem(shaping.last());
        }
    }
    tree.shade(shaping);
    remark->setText(names.isEmpty() ? tr("No setting in the file shapes this line.")
                                    : tr("This line is shaped by: %1").arg(names.join(u", "_s)));
}

} // namespace configtool
