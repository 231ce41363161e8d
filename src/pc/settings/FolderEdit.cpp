#include "FolderEdit.h"

#include "ElidedLine.h"
#include "SettingsLook.h"

#include "ui/LookTokens.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QPushButton>

FolderEdit::FolderEdit(QWidget *parent)
    : QWidget(parent)
    , m_line(new ElidedLine(this))
    , m_button(new QPushButton(this))
{
    m_line->setObjectName(QLatin1String(SettingsLook::Field));
    m_button->setObjectName(QLatin1String(SettingsLook::SmallButton));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::px(8));
    layout->addWidget(m_line, 1);
    layout->addWidget(m_button);
    setFocusProxy(m_line);
    connect(m_line, &QLineEdit::textEdited, this, [this] { emit folderChanged(folder()); });
    connect(m_button, &QPushButton::clicked, this, &FolderEdit::pick);
    retranslate();
}

QString FolderEdit::folder() const
{
    return QDir::fromNativeSeparators(m_line->text().trimmed());
}

void FolderEdit::setFolder(const QString &folder)
{
    if (folder == this->folder())
        return;
    m_line->setText(QDir::toNativeSeparators(folder));
    m_line->setCursorPosition(0);
    m_line->setToolTip(m_line->text());
}

void FolderEdit::setName(const QString &name)
{
    m_line->setAccessibleName(name);
}

void FolderEdit::retranslate()
{
    m_button->setText(tr("Browse..."));
}

void FolderEdit::pick()
{
    const QString chosen = QFileDialog::getExistingDirectory(window(), m_line->accessibleName(), folder());
    if (!chosen.isEmpty()) {
        setFolder(chosen);
        emit folderChanged(folder());
    }
}
