#include "StyleSheetScaler.h"

#include <QRegularExpression>

namespace StyleSheetScaler {

QString scaled(const QString &sheet, float ratio)
{
    if (ratio == 1.0F)
        return sheet;
    static const QRegularExpression length(QStringLiteral("(\\s|:)(-{0,1}\\d+\\s*px)"));
    QString result;
    result.reserve(sheet.size() + sheet.size() / 16);
    int copied = 0;
    auto matches = length.globalMatch(sheet);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString whole = match.captured(0);
        result += sheet.midRef(copied, match.capturedStart(0) - copied);
        const int value = whole.mid(1, whole.size() - 3).trimmed().toInt();
        result += whole.at(0);
        result += QString::number(int(float(value) * ratio));
        result += QLatin1String("px");
        copied = match.capturedEnd(0);
    }
    result += sheet.midRef(copied);
    return result;
}

} // namespace StyleSheetScaler
