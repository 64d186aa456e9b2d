#include "logdb/logreport.h"

#include "logdb/datacontrol.h"
#include "logdb/reportlines.h"
#include "logdb/storedforms.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <memory>

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

DbResult ReadReportText(const QString& path, const QString& recordSource, bool ampm, QString& text)
{
    DataControl data;
    data.SetDatabaseName(path);
    data.SetRecordSource(recordSource);
    if (DbResult read = data.Refresh(); !read)
        return read;
    text = BuildReportText(data, ampm);
    return DbResult::Success();
}

QString TextForPrinting(const QString& text)
{
    return text + QString::fromStdString(ReportDashLine()) +
           QString::fromLatin1(ReportLineEnd.data(), qsizetype(ReportLineEnd.size()));
}

PageDrawing ReportDrawing(const QString& text)
{
    const auto pages = std::make_shared<const std::vector<std::vector<std::string>>>(
        ReportPages(text.toStdString()));
    return [pages](QPainter& painter, const QRectF& area, int page) {
        painter.setFont(ReportFont());
        const QFontMetricsF metrics(painter.font(), painter.device());
        // The font's own spacing, unless 61 lines would then not fit the page.
        const double step = std::min(metrics.lineSpacing(), area.height() / LinesPerPage);
        double y = area.top() + metrics.ascent();
        for (const std::string& line : pages->at(std::size_t(page))) {
            painter.drawText(QPointF(area.left(), y), QString::fromStdString(line));
            y += step;
        }
        return std::size_t(page) + 1 < pages->size();
    };
}

QString PrintReportToPdf(const QString& path, const QString& text)
{
    return WritePdf(path, QString::fromLatin1(ReportDocumentTitle), DefaultPageLayout(),
                    ReportDrawing(text));
}
