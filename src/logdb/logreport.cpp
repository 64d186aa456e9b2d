#include "logdb/logreport.h"

#include "logdb/datacontrol.h"
#include "logdb/reportlines.h"
#include "logdb/storedforms.h"

#include <QFileInfo>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace {

// Every page holds its three title lines and at most 58 report lines.
constexpr int LinesPerPage = 61;

std::optional<double> Serial(const QVariant& stored)
{
    return stored.isNull() ? std::nullopt : StoredSerial(stored.toString().toStdString());
}

ReportRecord RecordOf(const DataControl& data)
{
    ReportRecord r;
    r.JulianDate = Serial(data.Field(QStringLiteral("JulianDate")));
    r.Major1 = Serial(data.Field(QStringLiteral("Major1")));
    r.Major2 = Serial(data.Field(QStringLiteral("Major2")));
    r.Minor1 = NumberOf(data.Field(QStringLiteral("Minor1")));
    r.Minor2 = NumberOf(data.Field(QStringLiteral("Minor2")));
    r.GraphicType = NumberOf(data.Field(QStringLiteral("GraphicType")));
    r.IllumPercent = NumberOf(data.Field(QStringLiteral("IllumPercent")));
    r.MoonAge = NumberOf(data.Field(QStringLiteral("MoonAge")));
    return r;
}

} // namespace

QFont ReportFont()
{
    QFont font(QStringLiteral("Courier"), 10);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    return font;
}

QString BuildReportText(DataControl& data, bool ampm, const std::function<void(int)>& progress)
{
    std::string text;
    const int count = data.RecordCount();
    text.reserve(std::size_t(count) * 96);
    if (count > 0)
        data.MoveFirst();
    for (int i = 1; i <= count; ++i) {
        text += ReportLine(i, RecordOf(data), ampm);
        if (progress)
            progress(i);
        if (i < count)
            data.MoveNext();
    }
    return QString::fromStdString(text);
}

bool PaintReportPages(QPagedPaintDevice& device, const QString& text)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    painter.setFont(ReportFont());
    const QRectF page = painter.viewport();
    // The font's own spacing, unless 61 lines would then not fit the page.
    const double step = std::min(QFontMetricsF(painter.font(), &device).lineSpacing(),
                                 page.height() / LinesPerPage);
    const double ascent = QFontMetricsF(painter.font(), &device).ascent();
    bool first = true;
    for (const auto& lines : ReportPages(text.toStdString())) {
        if (!first && !device.newPage())
            return false;
        first = false;
        double y = ascent;
        for (const std::string& line : lines) {
            painter.drawText(QPointF(0, y), QString::fromStdString(line));
            y += step;
        }
    }
    return painter.end();
}

QString PrintReportToPdf(const QString& path, const QString& text)
{
    QPdfWriter pdf(path);
    pdf.setTitle(QStringLiteral("Quillmere DataBase Report"));
    pdf.setCreator(QStringLiteral("Quillmere"));
    if (!PaintReportPages(pdf, text) || !QFileInfo(path).isFile())
        return QStringLiteral("The report could not be printed to %1.").arg(path);
    return {};
}
