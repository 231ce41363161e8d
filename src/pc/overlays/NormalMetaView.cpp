#include "NormalMetaView.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "ui/FixedDigits.h"
#include "ui/LookTokens.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

struct Row {
    QPlayer::QPlayerMetaType type;
    const char *label;
};

constexpr Row kRows[] = {
    {QPlayer::QPlayerMetaType_Video, QT_TRANSLATE_NOOP("NormalMetaView", "Video")},
    {QPlayer::QPlayerMetaType_Audio, QT_TRANSLATE_NOOP("NormalMetaView", "Audio")},
    {QPlayer::QPlayerMetaType_Subtitle, QT_TRANSLATE_NOOP("NormalMetaView", "Subtitle")},
    {QPlayer::QPlayerMetaType_Title, QT_TRANSLATE_NOOP("NormalMetaView", "Title")},
    {QPlayer::QPlayerMetaType_Chapter, QT_TRANSLATE_NOOP("NormalMetaView", "Chapter")},
    {QPlayer::QPlayerMetaType_Time, QT_TRANSLATE_NOOP("NormalMetaView", "Time")},
};

// Design pixels.
constexpr int kNameFont = 15;
constexpr int kLineFont = 13;
constexpr int kLineHeight = 24;
constexpr int kNameHeight = 32;
constexpr int kSide = 16;
constexpr int kTop = 10;
constexpr int kGap = 16;
constexpr int kWidest = 560;

int labelWidth(const QVector<QPair<QString, QString>> &lines, const QFontMetrics &metrics)
{
    int widest = 0;
    for (const auto &line : lines)
        widest = qMax(widest, metrics.horizontalAdvance(line.first));
    return widest;
}

// Only what is nothing but a time may be set figure by figure; every other text is shaped by its script.
bool isTime(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar character) {
        return (character >= QLatin1Char('0') && character <= QLatin1Char('9'))
               || character == QLatin1Char(':') || character == QLatin1Char('/')
               || character == QLatin1Char(' ');
    });
}

int timeWidth(const QFontMetrics &metrics, const QString &text)
{
    return isTime(text) ? FixedDigits::width(metrics, text) : 0;
}

} // namespace

NormalMetaView::NormalMetaView(QWidget *parent)
    : NormalMetaView(*SettingsManager::instance(), parent)
{
}

NormalMetaView::NormalMetaView(SettingsManager &settings, QWidget *parent)
    : OverlayWidget(parent)
    , m_settings(settings)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void NormalMetaView::setDisplayName(const QString &name)
{
    m_name = name;
    m_texts.clear();
    m_widest = 0;
    textChanged();
    updateShown();
}

void NormalMetaView::clear()
{
    setDisplayName({});
}

void NormalMetaView::updateShown()
{
    const bool wanted =
        !m_name.isEmpty() && m_settings.valueOr(QLatin1String(SettingsKeys::PC_ShowMeta), false);
    wanted ? appear() : disappear();
}

void NormalMetaView::slot_setMetaInfo(QPlayer::QPlayerMetaType type, QString strInfo)
{
    // These three come as one line, whichever of them has changed.
    const bool isVideo =
        type == QPlayer::QPlayerMetaType_DynamicRange || type == QPlayer::QPlayerMetaType_Further;
    const int row = isVideo ? QPlayer::QPlayerMetaType_Video : type;
    if (m_texts.value(row) == strInfo)
        return;
    m_texts[row] = strInfo;
    textChanged();
}

QVector<QPair<QString, QString>> NormalMetaView::lines() const
{
    QVector<QPair<QString, QString>> result;
    for (const Row &row : kRows) {
        const QString text = m_texts.value(row.type);
        // A file has no title that could be told by its number.
        bool isNumber = true;
        if (row.type == QPlayer::QPlayerMetaType_Title)
            text.toInt(&isNumber);
        if (!text.isEmpty() && isNumber)
            result.append({tr(row.label), text});
    }
    return result;
}

void NormalMetaView::textChanged()
{
    QStringList spoken(m_name);
    const auto all = lines();
    for (const auto &line : all)
        spoken << line.first + QLatin1Char(' ') + line.second;
    setAccessibleName(spoken.join(QLatin1String(", ")));
    // Grows with its texts and does not shrink under a running time.
    const QFontMetrics nameMetrics(Look::font(kNameFont, QFont::DemiBold));
    const QFontMetrics metrics(Look::font(kLineFont));
    int widest = nameMetrics.horizontalAdvance(m_name);
    const int label = labelWidth(all, metrics) + Look::px(kGap);
    for (const auto &line : all)
        widest = qMax(widest,
                      label + qMax(metrics.horizontalAdvance(line.second), timeWidth(metrics, line.second)));
    // A line drawn elsewhere than measured may be a little wider.
    m_widest = qMax(m_widest, qMin(widest + Look::px(2), Look::px(kWidest)));
    update();
    emit sig_shapeChanged();
}

QSize NormalMetaView::sizeHint() const
{
    return {m_widest + 2 * Look::px(kSide),
            2 * Look::px(kTop) + Look::px(kNameHeight) + lines().size() * Look::px(kLineHeight)};
}

void NormalMetaView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintGround(painter);
    QRect line(Look::px(kSide), Look::px(kTop), width() - 2 * Look::px(kSide), Look::px(kNameHeight));
    painter.setFont(Look::font(kNameFont, QFont::DemiBold));
    painter.setPen(Look::color(Look::Text));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(m_name, Qt::ElideMiddle, line.width()));
    line.moveTop(line.bottom() + 1);
    line.setHeight(Look::px(kLineHeight));
    painter.setFont(Look::font(kLineFont));
    const auto all = lines();
    const int label = labelWidth(all, painter.fontMetrics()) + Look::px(kGap);
    for (const auto &row : all) {
        painter.setPen(Look::color(Look::Soft));
        const int baseline = Look::baseline(line, painter.fontMetrics());
        painter.drawText(line.left(), baseline, row.first);
        painter.setPen(Look::color(Look::Text));
        const QRect value = line.adjusted(label, 0, 0, 0);
        if (isTime(row.second))
            FixedDigits::draw(painter, value, Qt::AlignLeft, row.second);
        else
            painter.drawText(value.left(), baseline,
                             painter.fontMetrics().elidedText(row.second, Qt::ElideRight, value.width()));
        line.translate(0, line.height());
    }
}
