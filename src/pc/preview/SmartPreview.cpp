#include "SmartPreview.h"

#include "PlayerPreviewSource.h"
#include "PreviewFetcher.h"

#include "playcontrol/BehaviourNames.h"
#include "player/QPlayer.h"
#include "transport/NormalOperateBar.h"
#include "transport/NormalProgressBar.h"
#include "transport/TransportButton.h"
#include "ui/OverlayHost.h"

namespace {

constexpr int AboveBar = 120; // design pixels

} // namespace

SmartPreview::SmartPreview(QWidget *window)
    : SmartPreview(window, std::make_shared<PlayerPreviewSource>(),
                   [](double seconds) { QPlayer::instance()->seek(seconds); })
{
}

SmartPreview::SmartPreview(QWidget *window, std::shared_ptr<IPreviewSource> source,
                           std::function<void(double)> seek)
    : QObject(window)
    , m_fetcher(new PreviewFetcher(std::move(source), PreviewFetcher::CacheBytes, this))
    , m_strip(new NormalPreviewView(*m_fetcher, std::move(seek), window))
    , m_pop(new NormalPreviewPopView(window))
{
    connectParts();
}

SmartPreview::~SmartPreview()
{
    // They use the fetcher. A window that is going may have taken them along already.
    delete m_strip.data();
    delete m_pop.data();
}

void SmartPreview::connectParts()
{
    connect(m_pop, &NormalPreviewPopView::sig_pictureWanted, this, [this](int positionMs) {
        if (m_hasSource && m_kind == Kind::File)
            m_fetcher->request(positionMs);
        else
            m_pop->showNoPicture(positionMs);
    });
    connect(m_fetcher, &PreviewFetcher::pictureReady, m_pop, &NormalPreviewPopView::showPicture);
    connect(m_fetcher, &PreviewFetcher::pictureMissing, m_pop, &NormalPreviewPopView::showNoPicture);
    connect(m_strip, &NormalPreviewView::sig_closeClicked, this, &SmartPreview::closeStrip);
}

void SmartPreview::addTo(OverlayHost &host, int stripLevel, int popLevel)
{
    host.add(m_strip, {OverlayRule::Anchor::BottomCentre, {0, 0, 0, AboveBar}, stripLevel});
    host.add(m_pop, {OverlayRule::Anchor::Free, {}, popLevel});
}

void SmartPreview::connectBar(NormalOperateBar *bar)
{
    bar->setPlaceAvailable(TransportPlace::Preview, true);
    // The time stands under the picture, or alone where there is none.
    bar->setHoverTextEnabled(false);
    const NormalProgressBar *slider = bar->progressBar();
    connect(slider, &NormalProgressBar::sig_mouseHoverd, m_pop, &NormalPreviewPopView::slot_showSeekView);
    connect(slider, &NormalProgressBar::sig_mouseLeaved, m_pop, &NormalPreviewPopView::slot_closeSeek);
    connect(slider, &NormalProgressBar::sig_mouseLeaved, m_fetcher, &PreviewFetcher::cancelRequest);
    connect(bar, &NormalOperateBar::sig_previewClicked, this, &SmartPreview::slot_previewClicked);
    connect(m_strip, &NormalPreviewView::sig_seeked, bar, &NormalOperateBar::slot_hidePreviewButton);
    connect(this, &SmartPreview::sig_stripShown, bar,
            [bar](bool isShown) { bar->button(NormalOperateBar::Button::Preview)->setChecked(isShown); });
}

void SmartPreview::beginSource(const QString &path, Kind kind)
{
    endSource();
    m_hasSource = true;
    m_kind = kind;
    m_fetcher->setSource(kind == Kind::File ? path : QString());
}

void SmartPreview::endSource()
{
    closeStrip();
    m_pop->reset();
    m_fetcher->setSource({});
    m_hasSource = false;
    m_totalSeconds = 0;
}

void SmartPreview::shutDown()
{
    endSource();
    m_fetcher->shutDown();
}

bool SmartPreview::isStripOpen() const
{
    return m_strip->state() != NormalPreviewView::State::Closed;
}

bool SmartPreview::takesKey(const QKeyEvent &event) const
{
    return m_strip->takesKey(event);
}

bool SmartPreview::handleKey(QKeyEvent *event)
{
    return m_strip->handleKey(event);
}

void SmartPreview::retranslate()
{
    m_strip->retranslate();
}

void SmartPreview::slot_previewClicked(bool isShow)
{
    if (!isShow) {
        closeStrip();
        return;
    }
    if (!m_hasSource) {
        emit sig_stripShown(false);
        return;
    }
    const bool isFile = m_kind == Kind::File;
    emit sig_userBehaviour(QLatin1String(isFile ? BehaviourNames::NormalFileSmartViewUsed
                                                : BehaviourNames::OtherFileSmartViewUsed),
                           QLatin1String(BehaviourNames::Used));
    if (!isFile) {
        emit sig_stripShown(false);
        emit sig_message(tr("The Smart Preview feature on DVDs and Blu-rays is coming soon!"));
        return;
    }
    m_strip->open(m_totalSeconds);
    emit sig_stripShown(true);
}

void SmartPreview::closeStrip()
{
    m_strip->close();
    emit sig_stripShown(false);
}

void SmartPreview::slot_setTimeInfo(int crtSecTime, int totalSecTime)
{
    const bool isNews = m_totalSeconds <= 0 && totalSecTime > 0;
    m_totalSeconds = totalSecTime;
    m_strip->setPlayingSecond(crtSecTime);
    // Opened before it was known what there is to show.
    if (isNews && isStripOpen()) {
        m_strip->close();
        m_strip->open(totalSecTime);
    }
}
