#include "NormalPreviewView.h"

#include "NormalPreviewDelegate.h"
#include "PreviewFetcher.h"
#include "PreviewRoles.h"

#include "dialogs/DialogSlider.h"
#include "player/QPlayer.h"
#include "transport/TransportButton.h"
#include "ui/FixedDigits.h"
#include "ui/FocusRing.h"
#include "ui/LookTokens.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QWheelEvent>

#include <algorithm>

namespace {

const QString AnimateKey = QStringLiteral("animate");

// Design pixels.
constexpr int Side = 16;
constexpr int HeadHeight = 48;
constexpr int ScrollHeight = 10;
constexpr int Foot = 8;
constexpr int NoteHeight = 64;
constexpr int FromWindow = 24; // left and right of the widest strip
constexpr int SliderWidth = 132;
constexpr int SliderHeight = 28;
constexpr int Gap = 8;
constexpr int GroupGap = 20;
constexpr int CloseSide = 32;
constexpr int CloseIcon = 16;
constexpr int TitleSize = 15;
constexpr int TextSize = 13;
constexpr int Rise = 12;
constexpr int ProgressHeight = 2;
constexpr int LeastRoom = 320;
constexpr int UsualRoom = 1024;

constexpr int UsualZoom = 3;
constexpr int MsASecond = 1000;
constexpr double GroundOpacity = 0.94;

void seekInPlayer(double seconds)
{
    QPlayer::instance()->seek(seconds);
}

} // namespace

NormalPreviewView::NormalPreviewView(PreviewFetcher &fetcher, QWidget *parent)
    : NormalPreviewView(fetcher, seekInPlayer, parent)
{
}

NormalPreviewView::NormalPreviewView(PreviewFetcher &fetcher, Seek seek, QWidget *parent)
    : OverlayWidget(parent)
    , m_fetcher(fetcher)
    , m_seek(std::move(seek))
    , m_model(new QStandardItemModel(this))
    , m_list(new QListView(this))
    , m_delegate(new NormalPreviewDelegate(this))
    , m_zoom(new DialogSlider(this))
    , m_quantity(new DialogSlider(this))
    , m_title(new QLabel(this))
    , m_zoomText(new QLabel(this))
    , m_quantityText(new QLabel(this))
    , m_note(new QLabel(this))
    , m_closeButton(new TransportButton(QStringLiteral("transport_close"), CloseIcon, this))
{
    makeParts();
    connectParts();
    retranslate();
    hide();
}

NormalPreviewView::~NormalPreviewView()
{
    // Before the widget goes: the animation calls back into it.
    deleteAll();
}

void NormalPreviewView::makeParts()
{
    m_list->setModel(m_model);
    m_list->setItemDelegate(m_delegate);
    m_list->setViewMode(QListView::IconMode);
    m_list->setFlow(QListView::LeftToRight);
    m_list->setWrapping(false);
    m_list->setMovement(QListView::Static);
    m_list->setUniformItemSizes(true);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setMouseTracking(true);
    m_list->setCursor(Qt::PointingHandCursor);
    m_list->setFocusPolicy(Qt::TabFocus);
    m_list->installEventFilter(this);
    m_list->viewport()->setAttribute(Qt::WA_Hover);
    m_list->viewport()->installEventFilter(this);

    m_zoom->setRange(0, PreviewPlan::ZoomMost);
    m_zoom->setValue(UsualZoom);
    m_quantity->setRange(0, PreviewPlan::QuantityMost);
    m_quantity->setValue(PreviewPlan::QuantityMost);
    for (DialogSlider *slider : {m_zoom, m_quantity}) {
        slider->setPageStep(1);
        slider->setNeutralValue(slider->minimum());
        slider->setMarkShown(false);
        slider->setFocusPolicy(Qt::TabFocus);
        slider->installEventFilter(this);
    }
    m_note->setAlignment(Qt::AlignCenter);
    m_note->setWordWrap(true);
    m_note->hide();
    for (QLabel *label : {m_title, m_zoomText, m_quantityText, m_note})
        label->setTextFormat(Qt::PlainText);
    m_closeButton->setFocusPolicy(Qt::TabFocus);
    applySheet();
}

void NormalPreviewView::connectParts()
{
    connect(m_zoom, &QSlider::valueChanged, this, &NormalPreviewView::slot_changeZoom);
    connect(m_quantity, &QSlider::valueChanged, this, &NormalPreviewView::slot_changeQuanlity);
    connect(m_list, &QAbstractItemView::clicked, this, &NormalPreviewView::slot_seek);
    connect(m_list->horizontalScrollBar(), &QAbstractSlider::sliderPressed, this,
            [this] { m_isFollowing = false; });
    // The list lays its rows out some time after they came.
    connect(m_list->horizontalScrollBar(), &QAbstractSlider::rangeChanged, this,
            &NormalPreviewView::followPlaying);
    connect(m_closeButton, &QAbstractButton::clicked, this, &NormalPreviewView::sig_closeClicked);
    connect(this, &NormalPreviewView::sig_clearCurrentIndex, m_list, [this] {
        m_hasCursor = false;
        m_list->clearSelection();
        m_list->setCurrentIndex({});
    });
    connect(&m_fetcher, &PreviewFetcher::rowReady, this, &NormalPreviewView::appendRow);
    connect(&m_fetcher, &PreviewFetcher::fillEnded, this, &NormalPreviewView::endFilling);
}

void NormalPreviewView::applySheet()
{
    // Sheets of the application reach a list and its scroll bar otherwise.
    m_list->setStyleSheet(
        QStringLiteral(
            "QListView { background: transparent; border: 0; }"
            "QScrollBar:horizontal { background: transparent; height: %1px; margin: 0; border: 0; }"
            "QScrollBar::handle:horizontal { background: %2; border-radius: %3px; min-width: %4px;"
            " margin: %5px 0; }"
            "QScrollBar::handle:horizontal:hover { background: %6; }"
            "QScrollBar::add-line, QScrollBar::sub-line { width: 0; }"
            "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }")
            .arg(Look::px(ScrollHeight))
            .arg(QStringLiteral("#3d5468"))
            .arg(Look::px(ScrollHeight) * 3 / 10)
            .arg(Look::px(40))
            .arg(Look::px(ScrollHeight) / 5)
            .arg(Look::color(Look::Mute).name()));
    const struct {
        QLabel *label;
        int size;
        QFont::Weight weight;
        QRgb color;
    } rows[] = {
        {m_title, TitleSize, QFont::DemiBold, Look::Text},
        {m_zoomText, TextSize, QFont::Normal, Look::Soft},
        {m_quantityText, TextSize, QFont::Normal, Look::Soft},
        {m_note, TextSize, QFont::Normal, Look::Soft},
    };
    for (const auto &row : rows) {
        row.label->setStyleSheet(
            QStringLiteral("background: transparent; font-family: \"%1\"; color: %2; font-size: %3px;"
                           " font-weight: %4;")
                .arg(Look::font(row.size).families().join(QLatin1String("\", \"")))
                .arg(Look::color(row.color).name())
                .arg(Look::px(row.size))
                .arg(row.weight == QFont::DemiBold ? 600 : 400));
    }
}

void NormalPreviewView::retranslate()
{
    m_title->setText(tr("Smart Preview"));
    m_zoomText->setText(tr("Zoom"));
    m_quantityText->setText(tr("Quantity"));
    m_zoom->setAccessibleName(tr("Zoom"));
    m_quantity->setAccessibleName(tr("Quantity"));
    m_list->setAccessibleName(tr("Smart Preview"));
    m_closeButton->setAccessibleName(tr("Close"));
    m_closeButton->setToolTip(tr("Close"));
    setAccessibleName(tr("Smart Preview"));
    arrange();
}

// ---- opening and closing

int NormalPreviewView::stopFlag() const
{
    return m_fetcher.stopFlag();
}

void NormalPreviewView::open(int totalSeconds)
{
    if (m_state != State::Closed)
        return;
    m_sourcePath = m_fetcher.sourcePath();
    m_state = State::Filling;
    m_isFollowing = true;
    applySheet();
    QVector<int> positions = PreviewPlan::positions(totalSeconds);
    m_wantedRows = positions.size();
    for (int &position : positions)
        position *= MsASecond;
    showNote({});
    fitSize();
    appear();
    if (!isWindow())
        raise();
    runAnimate(AnimateKey, true);
    m_fetcher.fill(positions);
}

void NormalPreviewView::close()
{
    if (m_state == State::Closed)
        return;
    m_state = State::Closed;
    m_fetcher.stopFill();
    m_fetcher.closeSession();
    clearRows();
    showNote({});
    m_sourcePath.clear();
    setKeyboardUsed(false);
    runAnimate(AnimateKey, false);
    // A host fades what no longer wants to be seen.
    if (isWindow())
        disappear();
}

void NormalPreviewView::clearRows()
{
    emit sig_clearCurrentIndex();
    m_model->clear();
    m_delegate->forgetPictures();
    m_hasPicture = false;
    m_wantedRows = 0;
    m_playingRow = -1;
}

void NormalPreviewView::appendRow(int positionMs, const QByteArray &png)
{
    if (m_state != State::Filling)
        return;
    const int seconds = positionMs / MsASecond;
    auto *item = new QStandardItem(FixedDigits::clock(seconds));
    item->setData(png, PreviewRoles::Picture);
    item->setData(seconds, PreviewRoles::Seconds);
    item->setEditable(false);
    m_model->appendRow(item);
    m_hasPicture |= !png.isEmpty();
    hideRow(m_model->rowCount() - 1);
    markPlaying();
    followPlaying();
    update();
}

void NormalPreviewView::endFilling()
{
    if (m_state != State::Filling)
        return;
    m_state = State::Filled;
    if (!m_hasPicture) {
        clearRows();
        showNote(tr("There are no preview pictures for this source."));
    }
    update();
}

void NormalPreviewView::showNote(const QString &text)
{
    const bool isNote = !text.isEmpty();
    if (m_note->text() == text)
        return;
    m_note->setText(text);
    m_note->setVisible(isNote);
    m_list->setVisible(!isNote);
    m_zoom->setEnabled(!isNote);
    m_quantity->setEnabled(!isNote);
    fitSize();
}

QString NormalPreviewView::noteText() const
{
    return m_note->text();
}

// The host places it anew; without one it keeps its lower edge and stands in the middle by itself.
void NormalPreviewView::fitSize()
{
    arrange();
    emit sig_shapeChanged();
    if (isWindow() || !parentWidget())
        return;
    const QSize size = sizeHint();
    setGeometry((parentWidget()->width() - size.width()) / 2, geometry().bottom() + 1 - size.height(),
                size.width(), size.height());
}

// ---- what is shown of it

void NormalPreviewView::slot_changeZoom(int nValue)
{
    const QSignalBlocker blocker(m_zoom);
    m_zoom->setValue(nValue);
    const int middle = m_list->horizontalScrollBar()->value() + m_list->viewport()->width() / 2;
    const double share = double(middle) / std::max(1, m_cells.cell.width());
    fitSize();
    // What was in the middle stays there.
    m_list->doItemsLayout();
    scrollToCell(qRound(share - m_cells.columns / 2.0));
}

void NormalPreviewView::scrollToCell(int cell)
{
    m_list->horizontalScrollBar()->setValue(cell * m_cells.cell.width());
}

void NormalPreviewView::slot_changeQuanlity(int nValue)
{
    const QSignalBlocker blocker(m_quantity);
    m_quantity->setValue(nValue);
    for (int row = 0; row < m_model->rowCount(); ++row)
        hideRow(row);
    const QModelIndex current = m_list->currentIndex();
    if (current.isValid() && m_list->isRowHidden(current.row()))
        emit sig_clearCurrentIndex();
    markPlaying();
    followPlaying();
}

void NormalPreviewView::hideRow(int row)
{
    m_list->setRowHidden(row, row % PreviewPlan::stepOf(m_quantity->value()) != 0);
}

void NormalPreviewView::setPlayingSecond(int second)
{
    if (m_playingSecond == second)
        return;
    m_playingSecond = second;
    if (m_state == State::Closed)
        return;
    markPlaying();
}

void NormalPreviewView::markPlaying()
{
    int playing = -1;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_list->isRowHidden(row))
            continue;
        if (m_model->item(row)->data(PreviewRoles::Seconds).toInt() > m_playingSecond)
            break;
        playing = row;
    }
    if (playing == m_playingRow)
        return;
    for (const int row : {m_playingRow, playing}) {
        if (QStandardItem *item = row >= 0 ? m_model->item(row) : nullptr)
            item->setData(row == playing, PreviewRoles::Playing);
    }
    m_playingRow = playing;
}

void NormalPreviewView::followPlaying()
{
    // In the middle, and with whole pictures at both ends.
    if (m_isFollowing && m_playingRow >= 0)
        scrollToCell(m_playingRow / PreviewPlan::stepOf(m_quantity->value()) - m_cells.columns / 2);
}

void NormalPreviewView::slot_seek(QModelIndex index)
{
    const QVariant seconds = index.data(PreviewRoles::Seconds);
    if (!seconds.isValid() || m_state == State::Closed)
        return;
    m_isFollowing = false;
    m_hasCursor = true;
    m_seek(seconds.toInt());
    emit sig_seeked();
}

// ---- geometry

int NormalPreviewView::room() const
{
    const QWidget *around = parentWidget();
    const int width = around ? around->width() - 2 * Look::px(FromWindow) : Look::px(UsualRoom);
    return std::max(width, Look::px(LeastRoom));
}

int NormalPreviewView::listHeight() const
{
    if (!m_note->text().isEmpty())
        return Look::px(NoteHeight);
    const auto cells =
        PreviewPlan::cells(m_zoom->value(), room(), double(DisplayScale::instance()->ratioWidth()));
    return cells.cell.height() + Look::px(ScrollHeight);
}

QSize NormalPreviewView::sizeHint() const
{
    const auto cells =
        PreviewPlan::cells(m_zoom->value(), room(), double(DisplayScale::instance()->ratioWidth()));
    return {cells.stripWidth, Look::px(HeadHeight) + listHeight() + Look::px(Foot)};
}

int NormalPreviewView::cornerRadius() const
{
    return Look::CornerDialog;
}

void NormalPreviewView::resizeEvent(QResizeEvent *event)
{
    OverlayWidget::resizeEvent(event);
    arrange();
}

void NormalPreviewView::arrange()
{
    // What is painted slides; a display that cannot blend shows it at its place at once.
    const int down = isCompact() ? 0 : qRound((1.0 - m_shown) * Look::px(Rise));
    const int side = Look::px(Side);
    const int head = Look::px(HeadHeight);
    const double ratio = double(DisplayScale::instance()->ratioWidth());
    m_cells = PreviewPlan::cells(m_zoom->value(), room(), ratio);
    // Cut to an area that is narrower than the window.
    if (width() < m_cells.stripWidth)
        m_cells = PreviewPlan::cells(m_zoom->value(), width(), ratio);
    m_delegate->setCellSize(m_cells.cell);

    const auto place = [&](QWidget *part, int right, const QSize &size) {
        part->setGeometry(right - size.width(), down + (head - size.height()) / 2, size.width(),
                          size.height());
        return part->x();
    };
    const QSize slider(std::min(Look::px(SliderWidth), width() / 5), Look::px(SliderHeight));
    int right = place(m_closeButton, width() - Look::px(Gap), {Look::px(CloseSide), Look::px(CloseSide)});
    const struct {
        QWidget *slider;
        QLabel *text;
    } groups[] = {{m_quantity, m_quantityText}, {m_zoom, m_zoomText}};
    for (const auto &group : groups) {
        right = place(group.slider, right - Look::px(GroupGap) / 2, slider);
        right = place(group.text, right - Look::px(Gap), group.text->sizeHint()) - Look::px(GroupGap) / 2;
    }
    const QSize title = m_title->sizeHint();
    // Above the first picture and not above the gap around it.
    const int left = side + PreviewPlan::pictureRect({{0, 0}, m_cells.cell}, ratio).left();
    m_title->setVisible(left + title.width() <= right);
    m_title->setGeometry(left, down + (head - title.height()) / 2, title.width(), title.height());

    const QRect body(side, down + head, std::max(1, width() - 2 * side),
                     std::max(1, height() - head - Look::px(Foot)));
    m_list->setGeometry(body);
    m_note->setGeometry(body);
    update();
}

void NormalPreviewView::initAnimate(QString name)
{
    initFade(
        name, [this](double shown) { slot_animateValueChange(shown); },
        [this] {
            if (m_state == State::Closed)
                disappear();
        });
}

void NormalPreviewView::startAnimate(QString name, bool forward)
{
    startFade(name, m_shown, forward, {Look::FadeInMs, Look::FadeOutMs});
}

void NormalPreviewView::slot_animateValueChange(QVariant value)
{
    m_shown = value.toDouble();
    arrange();
}

void NormalPreviewView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int down = isCompact() ? 0 : qRound((1.0 - m_shown) * Look::px(Rise));
    const QRectF ground = QRectF(rect()).adjusted(0.5, down + 0.5, -0.5, -0.5);
    const double radius = Look::px(cornerRadius());
    QColor color = Look::color(Look::Panel);
    if (!isCompact())
        color.setAlphaF(GroundOpacity);
    painter.setBrush(color);
    painter.setPen(QPen(Look::color(Look::NoteLine), 1));
    painter.drawRoundedRect(ground, radius, radius);

    if (m_state == State::Filling && m_wantedRows > 0) {
        const double share = double(m_model->rowCount()) / m_wantedRows;
        const QRectF line(Look::px(Side), down + Look::px(HeadHeight) - Look::px(ProgressHeight),
                          (width() - 2 * Look::px(Side)) * share, Look::px(ProgressHeight));
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::color(Look::Accent));
        painter.drawRoundedRect(line, line.height() / 2, line.height() / 2);
    }
    for (const QWidget *slider : {static_cast<QWidget *>(m_zoom), static_cast<QWidget *>(m_quantity)}) {
        if (!FocusRing::isOn(slider))
            continue;
        const double pen = 2.0 * Look::px(1);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Look::color(Look::AccentHover), pen));
        painter.drawRoundedRect(QRectF(slider->geometry()).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2),
                                Look::px(Look::CornerControl), Look::px(Look::CornerControl));
    }
}
