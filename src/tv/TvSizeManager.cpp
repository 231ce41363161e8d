#include "TvSizeManager.h"

#include "ui/DisplayScale.h"

namespace {

int wide(int designPixels)
{
    return DisplayScale::instance()->scaleWidth(designPixels);
}

int high(int designPixels)
{
    return DisplayScale::instance()->scaleHeight(designPixels);
}

QSize size(int width, int height)
{
    return {wide(width), high(height)};
}

QMargins margins(int left, int top, int right, int bottom)
{
    return {wide(left), high(top), wide(right), high(bottom)};
}

} // namespace

int TvSizeManager::startTopBarHeight() const
{
    return high(100);
}

int TvSizeManager::startBottomBarHeight() const
{
    return high(425);
}

QSize TvSizeManager::mainMenuItemSize() const
{
    return size(319, 356);
}

QSize TvSizeManager::fileItemSize() const
{
    return size(233, 239);
}

QSize TvSizeManager::historyItemSize(bool hasRightMargin) const
{
    const QMargins around = historyItemMargins(hasRightMargin);
    return size(400, 225) + QSize(around.left() + around.right(), around.top() + around.bottom());
}

QMargins TvSizeManager::historyItemMargins(bool hasRightMargin) const
{
    return margins(50, 18, hasRightMargin ? 50 : 0, 18);
}

QMargins TvSizeManager::historyTextMargins(bool hasRightMargin) const
{
    return margins(18, 0, hasRightMargin ? 18 : -32, 0);
}

int TvSizeManager::playMenuLeftListWidth() const
{
    return wide(329);
}

int TvSizeManager::playMenuRightListMargin() const
{
    return wide(18);
}

int TvSizeManager::playMenuRightListWidth() const
{
    return wide(460 - 18);
}

QSize TvSizeManager::playMenuItemSize() const
{
    return size(130, 95);
}

int TvSizeManager::playMenuRowHeight() const
{
    return high(85);
}

int TvSizeManager::playMenuTopRowHeight() const
{
    return 2 * playMenuRowHeight();
}

int TvSizeManager::playMenuRightListHeight(int row) const
{
    return (m_rightRows - row - 1) * playMenuRowHeight() + 2 * playMenuRowHeight();
}

int TvSizeManager::settingTitleHeight() const
{
    return high(130);
}

int TvSizeManager::settingRowHeight() const
{
    return high(65);
}

int TvSizeManager::settingGap() const
{
    return high(12);
}

int TvSizeManager::settingMargin() const
{
    return wide(10);
}

QMargins TvSizeManager::previewItemMargins() const
{
    return margins(9, 7, 9, 7);
}

QMargins TvSizeManager::previewPictureMargins() const
{
    return margins(2, 3, 2, 3);
}
