#include "QueueHead.h"

#include "transport/TransportButton.h"
#include "ui/LookTokens.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

namespace {

// Design pixels.
constexpr int kHeight = 52;
constexpr int kLeft = 16;
constexpr int kRight = 10;
constexpr int kGap = 8;
constexpr int kButton = 32;
constexpr int kIcon = 18;

} // namespace

QueueHead::QueueHead(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_count(new QLabel(this))
    , m_look(makeButton("playlist_grid"))
    , m_add(makeButton("playlist_add"))
    , m_option(makeButton("playlist_option"))
    , m_close(makeButton("transport_close"))
{
    setFixedHeight(Look::px(kHeight));
    m_title->setObjectName(QStringLiteral("playlistTitle"));
    m_count->setObjectName(QStringLiteral("playlistCount"));
    m_look->setCheckable(true);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Look::px(kLeft), 0, Look::px(kRight), 0);
    row->setSpacing(0);
    row->addWidget(m_title);
    row->addSpacing(Look::px(kGap));
    row->addWidget(m_count);
    row->addStretch();
    for (TransportButton *button : {m_look, m_add, m_option, m_close})
        row->addWidget(button);

    connect(m_look, &QAbstractButton::toggled, this, &QueueHead::lookChanged);
    connect(m_add, &QAbstractButton::clicked, this, &QueueHead::addClicked);
    connect(m_option, &QAbstractButton::clicked, this, &QueueHead::optionClicked);
    connect(m_close, &QAbstractButton::clicked, this, &QueueHead::closeClicked);
    retranslate();
    setCount(0);
}

TransportButton *QueueHead::makeButton(const char *icon)
{
    auto *button = new TransportButton(QLatin1String(icon), kIcon, this);
    button->setFixedSize(Look::px(kButton), Look::px(kButton));
    return button;
}

void QueueHead::setCount(int count)
{
    m_count->setText(count > 0 ? QLocale().toString(count) : QString());
}

void QueueHead::retranslate()
{
    m_title->setText(tr("Playlist"));
    const struct {
        TransportButton *button;
        QString text;
    } rows[] = {
        {m_look, tr("Icons")},
        {m_add, tr("Add")},
        {m_option, tr("Options")},
        {m_close, tr("Close")},
    };
    for (const auto &row : rows) {
        row.button->setToolTip(row.text);
        row.button->setAccessibleName(row.text);
    }
}
