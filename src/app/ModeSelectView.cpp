#include "ModeSelectView.h"

#include "StartupSequence.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsManager.h"
#include "ui/DisplayScale.h"
#include "ui/PictureButton.h"
#include "ui/PictureLabel.h"
#include "ui/RoundCorners.h"

#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// Design pixels.
constexpr QSize kTileSize{296, 240};
constexpr QSize kPictureSize{240, 144};
constexpr int kTitleHeight = 44;
constexpr int kSideMargin = 40;
constexpr int kTileGap = 24;
constexpr QSize kCloseSize{36, 32};
constexpr int kCloseIcon = 20;

int wide(int designPixels)
{
    return DisplayScale::instance()->scaleWidth(designPixels);
}

int high(int designPixels)
{
    return DisplayScale::instance()->scaleHeight(designPixels);
}

QLabel *makeLabel(const char *name, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

ModeSelectView::ModeSelectView(SettingsManager &store, QWidget *parent)
    : QMoveableNoBordersWnd(parent)
    , m_store(store)
{
    setObjectName(QStringLiteral("modeSelectView"));
    setWindowTitle(ApplicationInfoManager::productName());
    setTitleHeight(high(kTitleHeight));

    auto *panel = new QFrame(this);
    panel->setObjectName(QStringLiteral("modePanel"));
    RoundCorners::prepare(this, panel);
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(panel);

    auto *closeButton = new PictureButton(QStringLiteral("window_close"), panel);
    closeButton->setObjectName(QStringLiteral("closeButton"));
    closeButton->setDesignSize(kCloseSize, kCloseIcon);
    closeButton->setToolTip(tr("Close"));
    connect(closeButton, &QPushButton::clicked, this, &ModeSelectView::close);

    auto *title = new QHBoxLayout;
    title->setContentsMargins(wide(16), high(6), wide(6), 0);
    title->addWidget(makeLabel("modeTitle", ApplicationInfoManager::productName(), panel), 1);
    title->addWidget(closeButton);

    m_pc = makeTile("pcTile", QStringLiteral("modeselect_pc"), tr("PC Mode"),
                    tr("In a window, with mouse and keyboard"));
    m_tv = makeTile("tvTile", QStringLiteral("modeselect_tv"), tr("TV Mode"),
                    tr("Full screen, with a remote control"));
    auto *tiles = new QHBoxLayout;
    tiles->setSpacing(wide(kTileGap));
    tiles->addWidget(m_pc.frame);
    tiles->addWidget(m_tv.frame);

    m_remember = new QCheckBox(tr("Remember my choice and don't ask again"), panel);
    m_remember->setObjectName(QStringLiteral("rememberBox"));

    auto *body = new QVBoxLayout;
    body->setContentsMargins(wide(kSideMargin), high(12), wide(kSideMargin), high(32));
    body->setSpacing(0);
    body->addWidget(makeLabel("modeHeadline", tr("How do you want to watch?"), panel), 0, Qt::AlignHCenter);
    body->addSpacing(high(8));
    body->addWidget(makeLabel("modeNote", tr("You can change this later in the settings."), panel), 0,
                    Qt::AlignHCenter);
    body->addSpacing(high(28));
    body->addLayout(tiles);
    body->addSpacing(high(28));
    body->addWidget(m_remember, 0, Qt::AlignHCenter);

    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(title);
    layout->addLayout(body);
}

ModeSelectView::Tile ModeSelectView::makeTile(const char *objectName, const QString &picture,
                                              const QString &name, const QString &note)
{
    Tile tile;
    tile.frame = new QFrame(this);
    tile.frame->setObjectName(QLatin1String(objectName));
    tile.frame->setFixedSize(wide(kTileSize.width()), high(kTileSize.height()));
    tile.frame->setCursor(Qt::PointingHandCursor);
    tile.frame->setAttribute(Qt::WA_Hover);
    tile.frame->installEventFilter(this);

    tile.plain = new PictureLabel(picture, kPictureSize, tile.frame);
    tile.hover = new PictureLabel(picture + QLatin1String("_hover"), kPictureSize, tile.frame);
    for (PictureLabel *label : {tile.plain, tile.hover})
        label->setObjectName(QStringLiteral("tilePicture"));
    tile.hover->hide();

    auto *layout = new QVBoxLayout(tile.frame);
    layout->setContentsMargins(wide(16), high(16), wide(16), high(16));
    layout->setSpacing(0);
    layout->addWidget(tile.plain, 0, Qt::AlignHCenter);
    layout->addWidget(tile.hover, 0, Qt::AlignHCenter);
    layout->addSpacing(high(12));
    layout->addWidget(makeLabel("tileName", name, tile.frame), 0, Qt::AlignHCenter);
    layout->addSpacing(high(4));
    layout->addWidget(makeLabel("tileNote", note, tile.frame), 0, Qt::AlignHCenter);
    layout->addStretch();
    return tile;
}

bool ModeSelectView::eventFilter(QObject *watched, QEvent *event)
{
    for (const Tile &tile : {m_pc, m_tv}) {
        if (watched != tile.frame)
            continue;
        switch (event->type()) {
        case QEvent::HoverEnter:
            setLit(tile, true);
            break;
        case QEvent::HoverLeave:
            setLit(tile, false);
            break;
        case QEvent::MouseButtonPress:
            choose(tile.frame == m_pc.frame);
            return true;
        default:
            break;
        }
    }
    return QMoveableNoBordersWnd::eventFilter(watched, event);
}

void ModeSelectView::setLit(const Tile &tile, bool lit)
{
    tile.plain->setVisible(!lit);
    tile.hover->setVisible(lit);
    tile.frame->setProperty("lit", lit);
    tile.frame->style()->unpolish(tile.frame);
    tile.frame->style()->polish(tile.frame);
}

void ModeSelectView::choose(bool pc)
{
    m_isPcChosen = pc;
    m_isChosen = true;
    const int mode = pc ? StartupSequence::PcMode : StartupSequence::TvMode;
    m_store.setLaunchMode(m_remember->isChecked() ? mode : StartupSequence::AskMode);
    close();
}
