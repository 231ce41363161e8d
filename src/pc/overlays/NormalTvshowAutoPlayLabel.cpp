#include "NormalTvshowAutoPlayLabel.h"

#include "dialogs/DialogLook.h"

#include "playcontrol/PlayTimeText.h"
#include "ui/LookTokens.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace {

// Design pixels.
constexpr QSize Size{420, 132};
constexpr int Margin = 12;
constexpr QSize PosterSize{72, 108};
constexpr int Gap = 16;
constexpr int TitleSize = 15;

} // namespace

NormalTvshowAutoPlayLabel::NormalTvshowAutoPlayLabel(INextEpisodeSource *episodes, QWidget *parent)
    : PictureNote(parent)
    , m_episodes(episodes)
    , m_title(new QLabel(this))
    , m_playNow(new QPushButton(tr("Play Now"), this))
    , m_notThisTime(new QPushButton(tr("Not this time"), this))
{
    setStyleSheet(DialogLook::styleSheet());
    auto *upNext = new QLabel(tr("Up Next: "), this);
    upNext->setObjectName(QLatin1String(DialogLook::Soft));
    m_title->setObjectName(QLatin1String(DialogLook::Head));
    m_title->setTextFormat(Qt::PlainText);
    for (QPushButton *button : {m_playNow, m_notThisTime}) {
        button->setObjectName(QLatin1String(DialogLook::Button));
        button->setFocusPolicy(Qt::NoFocus); // the keys stay with the player
    }
    m_playNow->setDefault(true);
    connect(m_playNow, &QPushButton::clicked, this, &NormalTvshowAutoPlayLabel::playNow);
    connect(m_notThisTime, &QPushButton::clicked, this, &NormalTvshowAutoPlayLabel::notThisTime);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Look::px(8));
    buttons->addWidget(m_playNow);
    buttons->addWidget(m_notThisTime);
    buttons->addStretch(1);
    auto *lines = new QVBoxLayout(this);
    lines->setSpacing(Look::px(2));
    lines->addWidget(upNext);
    lines->addWidget(m_title);
    lines->addStretch(1);
    lines->addLayout(buttons);
    forget();
}

QSize NormalTvshowAutoPlayLabel::sizeHint() const
{
    return sizeFor({Look::px(Size.width()), Look::px(Size.height())});
}

void NormalTvshowAutoPlayLabel::forget()
{
    m_next = {};
    m_poster = {};
    m_isOffered = false;
}

void NormalTvshowAutoPlayLabel::setSource(const QString &path)
{
    forget();
    slot_hideLabel();
    const int request = ++m_request;
    if (!m_episodes || path.isEmpty())
        return;
    m_episodes->requestNext(
        path, [self = QPointer<NormalTvshowAutoPlayLabel>(this), request](const NextEpisode &next) {
            if (self && self->m_request == request)
                self->take(next);
        });
}

void NormalTvshowAutoPlayLabel::take(const NextEpisode &next)
{
    m_next = next;
    m_poster = {};
    if (!next.poster.isEmpty() && !m_poster.loadFromData(next.poster))
        qInfo() << "[Play control] poster of the next episode is broken, bytes:" << next.poster.size();
    resize(sizeHint());
    cardMoved();
    const QMargins around = layout()->contentsMargins();
    const QFontMetrics metrics(Look::font(TitleSize, QFont::DemiBold));
    m_title->setText(metrics.elidedText(next.title, Qt::ElideRight,
                                        width() - around.left() - around.right() - Look::px(2)));
    m_title->setToolTip(next.title);
    setAccessibleName(tr("Up Next: ") + next.title);
    update();
}

void NormalTvshowAutoPlayLabel::slot_setMetaInfo(QPlayer::QPlayerMetaType type, QString strInfo)
{
    if (type != QPlayer::QPlayerMetaType_Time || m_next.path.isEmpty())
        return;
    const auto times = PlayTimeText::parse(strInfo);
    if (!times || times->total <= 0)
        return;
    if (times->position < times->total - LeadSeconds) {
        // The user went back: the offer comes again.
        if (m_isOffered)
            slot_hideLabel();
        m_isOffered = false;
    } else if (!m_isOffered) {
        m_isOffered = true;
        QTimer::singleShot(0, this, &NormalTvshowAutoPlayLabel::slot_showLabel);
    }
}

void NormalTvshowAutoPlayLabel::slot_showLabel()
{
    // The answer to an earlier source may have been forgotten since the time came.
    if (m_next.path.isEmpty())
        return;
    open();
}

void NormalTvshowAutoPlayLabel::slot_hideLabel()
{
    dismiss();
}

void NormalTvshowAutoPlayLabel::playNow()
{
    const QString path = m_next.path;
    if (!isOpen() || path.isEmpty())
        return;
    slot_hideLabel();
    emit sig_playSource(path);
}

void NormalTvshowAutoPlayLabel::notThisTime()
{
    m_next = {};
    slot_hideLabel();
}

void NormalTvshowAutoPlayLabel::cardMoved()
{
    if (!layout())
        return;
    const QRect place = card();
    const int poster = m_poster.isNull() ? Look::px(4) : Look::px(PosterSize.width()) + Look::px(Gap);
    layout()->setContentsMargins(Look::px(Margin) + poster, place.top() + Look::px(Margin) + Look::px(2),
                                 Look::px(Margin) + Look::px(4),
                                 height() - 1 - place.bottom() + Look::px(Margin) + Look::px(2));
}

void NormalTvshowAutoPlayLabel::paintCard(QPainter &painter)
{
    PictureNote::paintCard(painter);
    if (m_poster.isNull())
        return;
    const QRect place(Look::px(Margin), card().top() + Look::px(Margin), Look::px(PosterSize.width()),
                      card().height() - 2 * Look::px(Margin));
    QPainterPath clip;
    clip.addRoundedRect(place, Look::px(Look::CornerControl), Look::px(Look::CornerControl));
    painter.setClipPath(clip);
    QRect target(QPoint(), m_poster.size().scaled(place.size(), Qt::KeepAspectRatioByExpanding));
    target.moveCenter(place.center());
    painter.drawPixmap(target, m_poster);
}
