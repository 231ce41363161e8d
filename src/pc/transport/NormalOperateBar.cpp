#include "NormalOperateBar.h"

#include "NormalProgressBar.h"
#include "OperateBarRows.h"
#include "ThreeDMenu.h"
#include "TransportButton.h"
#include "TransportTime.h"
#include "VolumeControl.h"
#include "VolumeSlider.h"
#include "playcontrol/BehaviourNames.h"
#include "ui/FocusRing.h"

#include "core/SettingsManager.h"
#include "ui/FixedDigits.h"
#include "ui/LookTokens.h"

#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

namespace {

// An engine that never answers a seek does not hold the slider for ever.
constexpr int kSeekGuardMs = 5000;
// Design pixels.
constexpr int kBubbleFont = 12;
constexpr int kBubbleSide = 10;
constexpr int kBubbleHeight = 24;

} // namespace

NormalOperateBar::NormalOperateBar(QWidget *parent)
    : NormalOperateBar(PlayerCommands::ofPlayer(), *SettingsManager::instance(), parent)
{
}

NormalOperateBar::NormalOperateBar(PlayerCommands commands, SettingsManager &settings, QWidget *parent)
    : NormalTransparentBar(Edge::Bottom, TransportLayout::DesignHeight, parent)
    , m_commands(commands)
    , m_volume(new VolumeControl(std::move(commands), settings, this))
    , m_threeD(new ThreeDMenu(settings, this))
    , m_progress(new NormalProgressBar(this))
    , m_volumeSlider(new VolumeSlider(this))
    , m_time(new TransportTime(this))
{
    setObjectName(QStringLiteral("NormalOperateBar"));
    m_seekGuard.setSingleShot(true);
    m_seekGuard.setInterval(kSeekGuardMs);
    makeButtons();
    connectParts();
    retranslate();
    m_volumeSlider->showVolume(m_volume->volumeCount(), m_volume->volume());
    m_volumeSlider->setMutedLook(m_volume->isMuted());
    arrange();
    updateEnabled();
}

NormalOperateBar::~NormalOperateBar()
{
    // The controls are hidden and deleted after this, and must not tell what is half gone.
    m_progress->disconnect(this);
    m_volumeSlider->disconnect(this);
}

void NormalOperateBar::makeButtons()
{
    for (const OperateBarRow &row : OperateBarRows::all()) {
        auto *button = new TransportButton(QLatin1String(row.icon), row.iconSize, this);
        button->setObjectName(QLatin1String(row.objectName));
        button->setCheckable(row.checkable);
        button->setPrimary(row.primary);
        button->setProperty(HotKeyProperty, row.hotKey);
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this, row.clicked);
        m_buttons[row.button] = button;
    }
    m_progress->setObjectName(QStringLiteral("slider_progress"));
    m_volumeSlider->setObjectName(QStringLiteral("slider_volume"));
    m_progress->installEventFilter(this);
    m_volumeSlider->installEventFilter(this);

    // The keyboard goes along the bar as the eye does.
    QWidget *last = m_progress;
    for (const OperateBarRow &row : OperateBarRows::all()) {
        QWidget *next = button(row.button);
        setTabOrder(last, next);
        last = next;
        if (row.button == Button::Mute) {
            setTabOrder(last, m_volumeSlider);
            last = m_volumeSlider;
        }
    }
}

void NormalOperateBar::connectParts()
{
    connect(m_progress, &NormalProgressBar::sig_valueChanged, this,
            &NormalOperateBar::slot_moveProgressSlider);
    connect(m_progress, &NormalProgressBar::sig_mouseHoverd, this, &NormalOperateBar::showBubble);
    connect(m_progress, &NormalProgressBar::sig_mouseLeaved, this, &NormalOperateBar::hideBubble);
    connect(m_progress, &QAbstractSlider::sliderMoved, this, &NormalOperateBar::showTime);
    connect(m_progress, &QAbstractSlider::sliderReleased, this, &NormalOperateBar::showTime);
    connect(m_volumeSlider, &VolumeSlider::moved, this, &NormalOperateBar::slot_moveVolumnSlider);
    connect(m_volume, &VolumeControl::volumeShown, m_volumeSlider, &VolumeSlider::showVolume);
    connect(m_volume, &VolumeControl::muteShown, this, [this](bool muted) {
        m_volumeSlider->setMutedLook(muted);
        putButtons();
    });
    connect(m_threeD, &ThreeDMenu::setupDue, this, [this] {
        putButtons();
        emit sig_setup3D();
    });
    connect(m_threeD, &ThreeDMenu::moreSettingsWanted, this, &NormalOperateBar::sig_more3DSettings);
    connect(m_threeD, &ThreeDMenu::refused, this, &NormalOperateBar::sig_message);
    connect(&m_seekGuard, &QTimer::timeout, this, [this] { m_seeking = false; });
}

TransportButton *NormalOperateBar::button(Button button) const
{
    return m_buttons.at(button);
}

QString NormalOperateBar::timeText() const
{
    return m_time->text();
}

bool NormalOperateBar::isIdle() const
{
    switch (m_status) {
    case QPlayer::QPlayerStatus_Playing:
    case QPlayer::QPlayerStatus_Paused:
    case QPlayer::QPlayerStatus_Forward:
    case QPlayer::QPlayerStatus_Rewind:
        return false;
    default:
        return true;
    }
}

void NormalOperateBar::reset(const QString &displayName)
{
    m_displayName = displayName;
    setSeekControl(1);
    setMusicPixmap({});
    slot_setUiByStatus(QPlayer::QPlayerStatus_None);
}

void NormalOperateBar::setSeekControl(int shown)
{
    m_hasTimeLine = shown != 0;
    m_progress->setVisible(m_hasTimeLine);
    updateEnabled();
}

void NormalOperateBar::setChapterMarks(const QVector<int> &seconds)
{
    m_progress->setChapterMarks(seconds);
}

void NormalOperateBar::setFullScreen(bool fullScreen)
{
    m_fullScreen = fullScreen;
    putButtons();
}

void NormalOperateBar::setPlaceAvailable(TransportPlace place, bool available)
{
    m_absent.set(static_cast<std::size_t>(place), !available);
    arrange();
}

void NormalOperateBar::setMusicPixmap(const QPixmap &cover)
{
    button(Button::MusicPixmap)->setCover(cover);
    arrange();
}

void NormalOperateBar::setMusicViewHidden(bool hidden)
{
    if (m_musicViewHidden == hidden)
        return;
    m_musicViewHidden = hidden;
    retranslate();
    emit sig_musicViewShowHideChanged(hidden);
}

void NormalOperateBar::setHoverTextEnabled(bool enabled)
{
    m_hoverTextEnabled = enabled;
    hideBubble();
}

// ---- what the player reports

void NormalOperateBar::slot_setUiByStatus(QPlayer::QPlayerStatus status)
{
    const bool wasIdle = isIdle();
    m_status = status;
    if (isIdle()) {
        m_seeking = false;
        m_seekGuard.stop();
        // Disabling first ends a drag, so that the rest position can be shown.
        updateEnabled();
        m_seconds = 0;
        m_totalSeconds = 0;
        m_progress->setChapterMarks({});
        m_progress->setTotal(0);
        m_progress->setPosition(0);
        showTime();
    } else if (wasIdle) {
        setPreviewAway(false);
        m_volume->reapply();
    }
    putButtons();
    updateEnabled();
}

void NormalOperateBar::slot_setTimeInfo(int crtSecTime, int totalSecTime)
{
    m_totalSeconds = qMax(0, totalSecTime);
    if (m_seeking)
        return;
    m_seconds = qMax(0, crtSecTime);
    if (m_progress->isSliderDown())
        return;
    m_progress->setTotal(m_totalSeconds);
    m_progress->setPosition(m_seconds);
    showTime();
}

void NormalOperateBar::slot_responseSeekState(VD_SeekState state)
{
    m_seeking = state == libvp::VD_Seek_Begin && !isIdle();
    if (m_seeking)
        m_seekGuard.start();
    else
        m_seekGuard.stop();
}

void NormalOperateBar::showTime()
{
    const bool dragged = m_progress->isSliderDown();
    m_time->setTime(dragged ? m_progress->sliderPosition() : m_seconds, m_totalSeconds);
}

bool NormalOperateBar::isFace(Button button) const
{
    const bool canPause = !isIdle() && m_status != QPlayer::QPlayerStatus_Paused;
    switch (button) {
    case Button::Pause:
        return canPause;
    case Button::Play:
        return !canPause;
    case Button::Mute:
        return m_volume->isMuted();
    case Button::Volume:
        return !m_volume->isMuted();
    case Button::NormalScreen:
        return m_fullScreen;
    case Button::FullScreen:
        return !m_fullScreen;
    case Button::ThreeDText:
        return m_threeD->isOn();
    case Button::ThreeDCube:
        return !m_threeD->isOn();
    case Button::Preview:
        return !m_previewAway;
    default:
        return true;
    }
}

void NormalOperateBar::putButtons()
{
    const QWidget *focused = window()->focusWidget();
    for (const OperateBarRow &row : OperateBarRows::all())
        button(row.button)->setVisible(isFace(row.button) && !m_layout.place(row.place).isEmpty());
    // The keyboard's cursor stays on the place when its two buttons change.
    for (const OperateBarRow &row : OperateBarRows::all()) {
        if (button(row.button) != focused || isFace(row.button))
            continue;
        for (const OperateBarRow &other : OperateBarRows::all()) {
            if (other.place == row.place && isFace(other.button))
                button(other.button)->setFocus(Qt::OtherFocusReason);
        }
    }
}

void NormalOperateBar::updateEnabled()
{
    const bool loaded = !isIdle();
    for (const OperateBarRow &row : OperateBarRows::all()) {
        if (row.needsSource)
            button(row.button)->setEnabled(loaded);
    }
    m_progress->setEnabled(loaded && m_hasTimeLine);
    m_time->setEnabled(loaded);
}

// ---- geometry and picture

TransportLayout NormalOperateBar::layoutOfSize() const
{
    TransportLayout::PlaceSet absent = m_absent;
    absent.set(static_cast<std::size_t>(TransportPlace::MusicPixmap),
               !button(Button::MusicPixmap)->hasCover());
    return TransportLayout::arranged(size(), double(DisplayScale::instance()->ratioWidth()), isCompact(),
                                     m_time->sizeHint().width(), absent);
}

QRect NormalOperateBar::panelRect() const
{
    // A hidden bar learns of its new size only when it is shown, and is cut before that.
    return layoutOfSize().panel();
}

void NormalOperateBar::arrange()
{
    m_layout = layoutOfSize();
    m_progress->setGeometry(m_layout.progress());
    const auto put = [this](QWidget *widget, TransportPlace place) {
        const QRect rect = m_layout.place(place);
        widget->setGeometry(rect);
        widget->setVisible(!rect.isEmpty());
    };
    put(m_time, TransportPlace::Time);
    put(m_volumeSlider, TransportPlace::VolumeSlider);
    for (const OperateBarRow &row : OperateBarRows::all())
        button(row.button)->setGeometry(m_layout.place(row.place));
    putButtons();
    update();
}

QRect NormalOperateBar::bubbleRect() const
{
    if (m_bubbleText.isEmpty())
        return {};
    const QFontMetrics metrics(Look::font(kBubbleFont, QFont::DemiBold));
    return m_layout.bubble(m_bubbleX, {FixedDigits::width(metrics, m_bubbleText) + 2 * Look::px(kBubbleSide),
                                       Look::px(kBubbleHeight)});
}

void NormalOperateBar::showBubble(const QString &time, QPoint global)
{
    if (!m_hoverTextEnabled)
        return;
    m_bubbleText = time;
    m_bubbleX = mapFromGlobal(global).x();
    update();
    if (isCompact())
        emit sig_shapeChanged();
}

void NormalOperateBar::hideBubble()
{
    if (m_bubbleText.isEmpty())
        return;
    m_bubbleText.clear();
    update();
    if (isCompact())
        emit sig_shapeChanged();
}

void NormalOperateBar::paintEvent(QPaintEvent *event)
{
    NormalTransparentBar::paintEvent(event);
    const QRect bubble = bubbleRect();
    if (bubble.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = Look::px(6);
    painter.setPen(QPen(Look::color(Look::NoteLine), 1));
    painter.setBrush(Look::color(isCompact() ? Look::Raised : Look::Note));
    painter.drawRoundedRect(QRectF(bubble).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.setFont(Look::font(kBubbleFont, QFont::DemiBold));
    painter.setPen(Look::color(Look::Text));
    FixedDigits::draw(painter, bubble, Qt::AlignHCenter, m_bubbleText);
}

QPainterPath NormalOperateBar::opaqueShape() const
{
    QPainterPath path = NormalTransparentBar::opaqueShape();
    const QRect bubble = bubbleRect();
    if (!bubble.isEmpty())
        path.addRoundedRect(bubble, Look::px(6), Look::px(6));
    return path;
}

bool NormalOperateBar::takesMouseAt(const QPoint &position) const
{
    return m_layout.panel().contains(position) || m_gripping;
}

void NormalOperateBar::compactChanged()
{
    arrange();
}

void NormalOperateBar::resizeEvent(QResizeEvent *event)
{
    NormalTransparentBar::resizeEvent(event);
    hideBubble();
    arrange();
}

void NormalOperateBar::showEvent(QShowEvent *event)
{
    setPreviewAway(false);
    NormalTransparentBar::showEvent(event);
}

void NormalOperateBar::enterEvent(QEvent *event)
{
    setPreviewAway(false);
    NormalTransparentBar::enterEvent(event);
}

// ---- the resize grip

void NormalOperateBar::mousePressEvent(QMouseEvent *event)
{
    m_gripping = event->button() == Qt::LeftButton && m_gripEnabled && !m_fullScreen
                 && m_layout.grip().contains(event->pos());
    event->setAccepted(takesMouseAt(event->pos()));
}

void NormalOperateBar::mouseMoveEvent(QMouseEvent *event)
{
    if (m_gripping) {
        emit sig_resize(event->globalPos());
        return;
    }
    const bool onGrip = m_gripEnabled && !m_fullScreen && m_layout.grip().contains(event->pos());
    setCursor(onGrip ? Qt::SizeFDiagCursor : Qt::ArrowCursor);
    event->ignore();
}

void NormalOperateBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_gripping || event->button() != Qt::LeftButton)
        return;
    m_gripping = false;
    emit sig_updateBorder();
}

void NormalOperateBar::mouseDoubleClickEvent(QMouseEvent *event)
{
    // A quick second click between two buttons means nothing.
    event->setAccepted(takesMouseAt(event->pos()));
}
