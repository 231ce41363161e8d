#include "GenreCollage.h"

#include "PictureDecoder.h"
#include "PosterLoader.h"

#include <QPainter>
#include <QSet>

#include <algorithm>

namespace {

constexpr int kHalf = GenreCollage::kSide / 2;

// The places of the pictures, for each number of them.
const QList<QRect> &places(int count)
{
    constexpr int whole = GenreCollage::kSide;
    static const QList<QRect> layouts[] = {
        {},
        {{0, 0, whole, whole}},
        {{0, 0, kHalf, whole}, {kHalf, 0, kHalf, whole}},
        {{0, 0, kHalf, whole}, {kHalf, 0, kHalf, kHalf}, {kHalf, kHalf, kHalf, kHalf}},
        {{0, 0, kHalf, kHalf},
         {kHalf, 0, kHalf, kHalf},
         {0, kHalf, kHalf, kHalf},
         {kHalf, kHalf, kHalf, kHalf}},
    };
    return layouts[count];
}

// Four whole covers need not be held at once.
QImage reduced(const QImage &picture)
{
    constexpr int side = GenreCollage::kSide;
    if (picture.width() <= side || picture.height() <= side)
        return picture;
    return picture.scaled(side, side, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
}

} // namespace

namespace GenreCollage {

QImage compose(const QList<QImage> &pictures)
{
    if (pictures.isEmpty())
        return {};
    const QList<QRect> &layout = places(std::min(pictures.size(), kMostPictures));
    QImage collage(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    collage.fill(Qt::transparent);
    QPainter painter(&collage);
    for (int index = 0; index < layout.size(); ++index) {
        const QRect &place = layout.at(index);
        painter.drawImage(place, PictureDecoder::scaledAndCropped(pictures.at(index), place.size()));
    }
    return collage;
}

QImage load(const QString &genre, const PictureSources &sources, const std::function<bool()> &wanted)
{
    if (!sources.genrePosters)
        return {};
    QList<QImage> pictures;
    QSet<QString> seen;
    const QStringList posters = sources.genrePosters(genre);
    for (const QString &poster : posters) {
        if (pictures.size() == kMostPictures)
            break;
        if (!wanted())
            return {};
        if (poster.isEmpty() || seen.contains(poster))
            continue;
        seen.insert(poster);
        const QImage picture = reduced(PosterLoader::load(poster, sources));
        if (picture.isNull())
            continue;
        // The songs of an album often carry the same cover under names of their own.
        if (!pictures.contains(picture))
            pictures.append(picture);
    }
    return compose(pictures);
}

} // namespace GenreCollage
