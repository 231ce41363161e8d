#include "MessageText.h"

#include "DialogLook.h"

#include "ui/LookTokens.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QtMath>

namespace {

constexpr int LineHeight = 130; // percent

} // namespace

MessageText::MessageText(QWidget *parent)
    : QTextBrowser(parent)
{
    setObjectName(QLatin1String(DialogLook::Text));
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setOpenExternalLinks(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    document()->setDocumentMargin(0);
    document()->setDefaultStyleSheet(
        QStringLiteral("a { color: %1; text-decoration: none; }").arg(Look::color(Look::AccentHover).name()));
}

void MessageText::setMessage(const QString &text)
{
    m_message = text;
    const bool isRich = Qt::mightBeRichText(text);
    if (isRich) {
        setHtml(text);
    } else {
        setPlainText(text);
        QTextBlockFormat format;
        format.setLineHeight(LineHeight, QTextBlockFormat::ProportionalHeight);
        QTextCursor cursor(document());
        cursor.select(QTextCursor::Document);
        cursor.mergeBlockFormat(format);
    }
    setAccessibleName(toPlainText());
    // Tab stops here only where there is something to reach.
    setFocusPolicy(text.contains(QLatin1String("<a ")) ? Qt::StrongFocus : Qt::ClickFocus);
}

int MessageText::heightFor(int width) const
{
    const std::unique_ptr<QTextDocument> copy(document()->clone());
    copy->setDocumentMargin(0);
    copy->setDefaultFont(font());
    QTextOption option = copy->defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    copy->setDefaultTextOption(option);
    copy->setTextWidth(width);
    return qCeil(copy->size().height());
}

void MessageText::fit(int width, int limit)
{
    const int wanted = heightFor(width);
    const int scrollBar = Look::px(12);
    setVerticalScrollBarPolicy(wanted > limit ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    if (wanted > limit)
        setFocusPolicy(Qt::StrongFocus);
    setFixedHeight(qMin(heightFor(wanted > limit ? width - scrollBar : width), limit));
}
