#include "StartLayout.h"

#include <QtGlobal>

namespace {

// Design pixels.
constexpr int kSmallWidth = 640;
constexpr int kSmallHeight = 360;
constexpr int kTallHeight = 720;
constexpr int kMargin = 32;
constexpr int kSmallMargin = 16;
constexpr int kWidest = 1520;
// On a screen far wider than that, this part of it.
constexpr double kWidestPart = 0.62;
constexpr int kNarrowestText = 60;

constexpr int kMostColumns = 8;
constexpr int kNarrowestCard = 224;
constexpr int kGap = 16;
constexpr int kCardText = 48;
constexpr int kLineHeight = 64;
constexpr int kLineGap = 4;
constexpr int kNarrowestLine = 300;
// The frame of a card that has the cursor stands outside of it.
constexpr int kFrame = 4;

// Beside the text of the button, as in the style sheet.
constexpr int kClearPadding = 12;
constexpr int kHeadingHeight = 32;
constexpr int kHeadingGap = 8;
constexpr int kTallHeadingGap = 40;

// The middle, from top to bottom: each part and the space behind it.
struct Middle {
    int mark;
    int afterMark;
    int namePixels;
    int name;
    int afterName;
    int note;
    int afterNote;
};
constexpr Middle kMiddle{80, 20, 28, 36, 6, 20, 28};
constexpr Middle kSmallMiddle{48, 8, 20, 28, 4, 20, 16};

struct Row {
    int top;
    int mark;
    int afterMark;
    int namePixels;
    int name;
    int note;
    int bottom;
};
constexpr Row kRow{20, 44, 16, 20, 26, 20, 12};
constexpr Row kSmallRow{12, 32, 12, 15, 32, 0, 4};

} // namespace

StartLayout::StartLayout(const Needs &needs, double factor)
    : m_factor(factor)
{
    m_isSmall = needs.page.width() < px(kSmallWidth) || needs.page.height() < px(kSmallHeight);
    const int margin = px(m_isSmall ? kSmallMargin : kMargin);
    const int widest = qMax(px(kWidest), int(needs.page.width() * kWidestPart));
    m_width = qMax(0, qMin(needs.page.width() - 2 * margin, widest));
    m_left = (needs.page.width() - m_width) / 2;
    if (needs.recentCount <= 0) {
        placeMiddle(needs, (needs.page.height() - middleHeight(needs)) * 5 / 11);
        return;
    }

    m_hasLines = m_isSmall;
    measureCards(needs.recentCount);
    const bool isTall = !m_isSmall && needs.page.height() >= px(kTallHeight);
    if (!isTall) {
        m_form = Form::Row;
        placeRow(needs);
        const int top = qMax(m_mark.bottom(), m_open.bottom()) + 1;
        placeWall(needs, top + px(m_isSmall ? kSmallRow.bottom : kRow.bottom));
        return;
    }
    m_form = Form::Tall;
    const int above = middleHeight(needs) + px(kTallHeadingGap);
    const int rest = needs.page.height() - above - px(kHeadingHeight + kHeadingGap) - m_wallHeight;
    const int top = qMax(px(kMargin + kGap), rest / 3);
    placeMiddle(needs, top);
    placeWall(needs, top + above);
}

int StartLayout::namePixels() const
{
    if (m_form == Form::Row)
        return m_isSmall ? kSmallRow.namePixels : kRow.namePixels;
    return m_isSmall ? kSmallMiddle.namePixels : kMiddle.namePixels;
}

int StartLayout::px(int designPixels) const
{
    return qRound(designPixels * m_factor);
}

int StartLayout::middleHeight(const Needs &needs) const
{
    const Middle &middle = m_isSmall ? kSmallMiddle : kMiddle;
    return px(middle.mark) + px(middle.afterMark) + px(middle.name) + px(middle.afterName) + px(middle.note)
           + px(middle.afterNote) + needs.openButton.height();
}

void StartLayout::placeMiddle(const Needs &needs, int top)
{
    const Middle &middle = m_isSmall ? kSmallMiddle : kMiddle;
    int y = qMax(0, top);
    m_mark = QRect(m_left + (m_width - px(middle.mark)) / 2, y, px(middle.mark), px(middle.mark));
    y += px(middle.mark) + px(middle.afterMark);
    m_name = QRect(m_left, y, m_width, px(middle.name));
    y += px(middle.name) + px(middle.afterName);
    m_note = QRect(m_left, y, m_width, px(middle.note));
    y += px(middle.note) + px(middle.afterNote);
    const int width = qMin(m_width, needs.openButton.width());
    m_open = QRect(m_left + (m_width - width) / 2, y, width, needs.openButton.height());
}

void StartLayout::placeRow(const Needs &needs)
{
    const Row &row = m_isSmall ? kSmallRow : kRow;
    const int height = qMax(px(row.mark), needs.openButton.height());
    const int top = px(row.top);
    const auto middle = [top, height](int part) { return top + (height - part) / 2; };
    m_mark = QRect(m_left, middle(px(row.mark)), px(row.mark), px(row.mark));
    const int width = qMin(needs.openButton.width(), m_width - m_mark.width());
    m_open =
        QRect(m_left + m_width - width, middle(needs.openButton.height()), width, needs.openButton.height());
    const int textLeft = m_mark.right() + 1 + px(row.afterMark);
    const int textWidth = m_open.left() - px(row.afterMark) - textLeft;
    if (textWidth < px(kNarrowestText))
        return;
    const int textTop = middle(px(row.name) + px(row.note));
    m_name = QRect(textLeft, textTop, textWidth, px(row.name));
    if (row.note > 0)
        m_note = QRect(textLeft, textTop + px(row.name), textWidth, px(row.note));
}

void StartLayout::measureCards(int count)
{
    const int gap = px(kGap);
    const int narrowest = px(m_hasLines ? kNarrowestLine : kNarrowestCard);
    m_columns = qBound(1, (m_width + gap) / (narrowest + gap), kMostColumns);
    const int frame = px(kFrame);
    // The ground of a line reaches beyond its picture and its text, which stand where all the rest does.
    const int beyond = m_hasLines ? frame : 0;
    const int width = (m_width + 2 * beyond - gap * (m_columns - 1)) / m_columns;
    const int height = m_hasLines ? px(kLineHeight) : width * 9 / 16 + px(kCardText);
    const int rowGap = m_hasLines ? px(kLineGap) : gap;
    for (int i = 0; i < count; ++i) {
        const int x = frame - beyond + i % m_columns * (width + gap);
        const int y = frame + i / m_columns * (height + rowGap);
        m_cards << QRect(x, y, width, height);
    }
    m_wallHeight = m_cards.last().bottom() + 1 + gap;
}

void StartLayout::placeWall(const Needs &needs, int top)
{
    const int height = px(kHeadingHeight);
    const int width = qMin(needs.clearButton.width(), m_width);
    // Its text ends where everything ends; its ground shows only under the pointer.
    m_clear = QRect(m_left + m_width - width + px(kClearPadding),
                    top + (height - needs.clearButton.height()) / 2, width, needs.clearButton.height());
    m_heading = QRect(m_left, top, m_width - width, height);
    const int wallTop = top + height + px(m_isSmall ? kFrame : kHeadingGap) - px(kFrame);
    // To the very edges of the page, so that the bar that scrolls stands there.
    m_wall = QRect(m_left - px(kFrame), wallTop, needs.page.width() - m_left + px(kFrame),
                   qMax(0, needs.page.height() - wallTop));
}
