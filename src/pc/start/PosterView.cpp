#include "PosterView.h"

#include "core/ThreadWorker.h"
#include "ui/LookTokens.h"

#include <QBuffer>
#include <QDebug>
#include <QFile>
#include <QImageReader>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

namespace {

constexpr int kFadeMs = 400;
constexpr int kStopMs = 200;
// No screen shows more.
constexpr QSize kLargest{3840, 2160};
// Soft text stays readable over white.
constexpr double kShade = 0.82;

QImage decoded(QIODevice *device)
{
    QImageReader reader(device);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > kLargest.width() || size.height() > kLargest.height())
        reader.setScaledSize(size.scaled(kLargest, Qt::KeepAspectRatio));
    return reader.read();
}

QImage decodedFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? decoded(&file) : QImage();
}

QImage decodedData(const QVariant &data)
{
    if (data.userType() != QMetaType::QByteArray)
        return decodedFile(data.toString());
    QByteArray bytes = data.toByteArray();
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::ReadOnly) ? decoded(&buffer) : QImage();
}

QPixmap pictureOf(const QVariant &data)
{
    if (data.userType() == QMetaType::QPixmap)
        return data.value<QPixmap>();
    if (data.userType() == QMetaType::QImage)
        return QPixmap::fromImage(data.value<QImage>());
    return {};
}

template<class Picture>
Picture covering(const Picture &picture, const QSize &size)
{
    if (picture.isNull() || size.isEmpty())
        return {};
    return picture.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
}

bool isToBeRead(const QVariant &data)
{
    return (data.userType() == QMetaType::QString || data.userType() == QMetaType::QByteArray)
           && !data.toByteArray().isEmpty();
}

} // namespace

PosterView::PosterView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

PosterView::~PosterView()
{
    deleteAll();
    if (m_worker)
        m_worker->stop(kStopMs);
}

void PosterView::setPoster(const QVariant &source, bool animate)
{
    const QPixmap ready = pictureOf(source);
    if (!ready.isNull()) {
        ++m_latest;
        present(ready, {}, false, animate);
    } else if (isToBeRead(source) || !m_isDefault || m_picture.isNull()) {
        load(source, animate);
    } else {
        ++m_latest;
    }
}

void PosterView::load(const QVariant &source, bool animate)
{
    struct Read {
        QImage image;
        QImage scaled;
        bool isDefault{false};
    };
    const quint64 number = ++m_latest;
    const QSize shown = size() * devicePixelRatioF();
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>();
    const auto read = std::make_shared<Read>();
    m_worker->addTask(
        [read, source, shown] {
            if (isToBeRead(source))
                read->image = decodedData(source);
            read->isDefault = read->image.isNull();
            if (read->isDefault) {
                if (isToBeRead(source) && source.userType() == QMetaType::QString)
                    qInfo().noquote() << "[Start view] picture can't be read:" << source.toString();
                read->image = decodedFile(QString::fromLatin1(DefaultPicture));
            }
            read->scaled = covering(read->image, shown);
        },
        [this, read, number, animate, shown] {
            if (number != m_latest)
                return;
            // The page may have got another size in the meantime.
            const bool fits = shown == size() * devicePixelRatioF();
            present(QPixmap::fromImage(read->image), fits ? QPixmap::fromImage(read->scaled) : QPixmap(),
                    read->isDefault, animate);
        });
}

void PosterView::present(const QPixmap &picture, const QPixmap &scaled, bool isDefault, bool animate)
{
    m_former = m_picture;
    m_formerScaled = m_scaled;
    m_picture = picture;
    m_scaled = scaled;
    m_scaled.setDevicePixelRatio(devicePixelRatioF());
    m_isDefault = isDefault;
    const double shade = isDefault ? 0.0 : 1.0;
    if (animate && isVisible()) {
        setPosterProgress(0.0);
        runAnimate(QLatin1String(PosterAnimation), true);
        if (m_opacityProgress != shade)
            runAnimate(QLatin1String(OpacityAnimation), !isDefault);
    } else {
        stopAll();
        setPosterProgress(1.0);
        setOpacityProgress(shade);
    }
    update();
    emit posterChanged();
}

void PosterView::setPosterProgress(double progress)
{
    m_posterProgress = qBound(0.0, progress, 1.0);
    if (m_posterProgress >= 1.0) {
        m_former = {};
        m_formerScaled = {};
    }
    update();
}

void PosterView::setOpacityProgress(double progress)
{
    m_opacityProgress = qBound(0.0, progress, 1.0);
    update();
}

void PosterView::initAnimate(QString name)
{
    const bool isPoster = name == QLatin1String(PosterAnimation);
    initFade(name, [this, isPoster](double progress) {
        if (isPoster)
            setPosterProgress(progress);
        else
            setOpacityProgress(progress);
    });
}

void PosterView::startAnimate(QString name, bool forward)
{
    const double from = name == QLatin1String(PosterAnimation) ? m_posterProgress : m_opacityProgress;
    startFade(name, from, forward, {kFadeMs, kFadeMs}, QEasingCurve::InOutCubic);
}

void PosterView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Not before: now the size is known, and a program that starts with a film, which takes the page's place
    // at once, never reads it.
    QTimer::singleShot(0, this, [this] {
        if (m_latest == 0 && isVisible())
            setPoster({}, false);
    });
}

void PosterView::resizeEvent(QResizeEvent *event)
{
    m_scaled = {};
    m_formerScaled = {};
    QWidget::resizeEvent(event);
}

void PosterView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Look::color(Look::Ground));
    if (m_posterProgress < 1.0)
        drawCovering(painter, m_former, m_formerScaled);
    painter.setOpacity(m_posterProgress);
    drawCovering(painter, m_picture, m_scaled);
    painter.setOpacity(m_opacityProgress * kShade);
    if (m_opacityProgress > 0.0)
        painter.fillRect(event->rect(), Look::color(Look::Deep));
}

void PosterView::drawCovering(QPainter &painter, const QPixmap &picture, QPixmap &scaled) const
{
    if (picture.isNull())
        return;
    const qreal ratio = devicePixelRatioF();
    if (scaled.isNull()) {
        scaled = covering(picture, size() * ratio);
        scaled.setDevicePixelRatio(ratio);
    }
    const QSize shown = scaled.size() / ratio;
    painter.drawPixmap((width() - shown.width()) / 2, (height() - shown.height()) / 2, scaled);
}
