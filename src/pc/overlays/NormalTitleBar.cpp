#include "NormalTitleBar.h"

#include "ui/DisplayScale.h"
#include "ui/PictureButton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

namespace {

// Design pixels.
constexpr int kHeight = 40;
constexpr QSize kButton{40, 32};
constexpr int kIcon = 20;

} // namespace

NormalTitleBar::NormalTitleBar(QWidget *parent)
    : QWidget(parent)
{
    const auto *scale = DisplayScale::instance();
    setObjectName(QStringLiteral("titleBar"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(scale->scaleHeight(kHeight));

    m_label = new QLabel(this);
    m_label->setObjectName(QStringLiteral("titleText"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setMinimumWidth(0);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    const auto makeButton = [this](const char *picture, const char *name) {
        auto *button = new PictureButton(QLatin1String(picture), this);
        button->setObjectName(QLatin1String(name));
        button->setDesignSize(kButton, kIcon);
        return button;
    };
    m_menu = makeButton("window_menu", "windowButton");
    m_min = makeButton("window_min", "windowButton");
    m_max = makeButton("window_max", "windowButton");
    m_close = makeButton("window_close", "windowCloseButton");
    connect(m_menu, &QPushButton::clicked, this, &NormalTitleBar::menuClicked);
    connect(m_min, &QPushButton::clicked, this, &NormalTitleBar::minClicked);
    connect(m_max, &QPushButton::clicked, this, &NormalTitleBar::toggleMaximized);
    connect(m_close, &QPushButton::clicked, this, &NormalTitleBar::closeClicked);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(scale->scaleWidth(8), 0, scale->scaleWidth(8), 0);
    layout->setSpacing(scale->scaleWidth(4));
    layout->addWidget(m_menu);
    layout->addWidget(m_label, 1);
    for (PictureButton *button : {m_min, m_max, m_close})
        layout->addWidget(button);
    retranslate();
}

void NormalTitleBar::retranslate()
{
    const struct {
        PictureButton *button;
        QString text;
    } rows[] = {{m_menu, tr("Menu")},
                {m_min, tr("Minimize")},
                {m_max, m_maximized ? tr("Restore") : tr("Maximize")},
                {m_close, tr("Close")}};
    for (const auto &row : rows) {
        row.button->setToolTip(row.text);
        row.button->setAccessibleName(row.text);
    }
}

void NormalTitleBar::setText(const QString &text)
{
    m_text = text;
    showText();
}

void NormalTitleBar::setMaximized(bool maximized)
{
    m_maximized = maximized;
    m_max->setPicture(maximized ? QStringLiteral("window_restore") : QStringLiteral("window_max"));
    retranslate();
}

QWidget *NormalTitleBar::movedWindow() const
{
    return m_movedWindow != nullptr ? m_movedWindow : window();
}

void NormalTitleBar::toggleMaximized()
{
    if (m_maximized)
        emit restoreClicked();
    else
        emit maxClicked();
}

void NormalTitleBar::showText()
{
    m_label->setText(m_label->fontMetrics().elidedText(m_text, Qt::ElideMiddle, m_label->width()));
}

void NormalTitleBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    showText();
}

void NormalTitleBar::mousePressEvent(QMouseEvent *event)
{
    m_dragging = event->button() == Qt::LeftButton;
    m_dragOffset = event->globalPos() - movedWindow()->pos();
}

void NormalTitleBar::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragging && event->buttons().testFlag(Qt::LeftButton) && !m_maximized)
        movedWindow()->move(event->globalPos() - m_dragOffset);
}

void NormalTitleBar::mouseReleaseEvent(QMouseEvent *)
{
    m_dragging = false;
}

void NormalTitleBar::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        toggleMaximized();
}
