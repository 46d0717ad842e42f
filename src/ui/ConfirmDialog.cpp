#include "ConfirmDialog.h"

#include "DesktopColorScheme.h"
#include "ThemeEngine.h"
#include "TovraDialogTitleBarThemer.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

ConfirmDialog::ConfirmDialog(QWidget *parent)
    : QDialog(parent)
    , m_title(new QLabel(this))
    , m_message(new QLabel(this))
    , m_accept(new QPushButton(this))
    , m_alternate(new QPushButton(this))
    , m_cancel(new QPushButton(this))
{
    setObjectName(QStringLiteral("TovraConfirmDialog"));
    setModal(true);
    setMinimumWidth(420);

    m_title->setObjectName(QStringLiteral("TovraConfirmTitle"));
    m_title->setWordWrap(true);
    m_message->setObjectName(QStringLiteral("TovraConfirmMessage"));
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);

    m_accept->setObjectName(QStringLiteral("TovraConfirmAccept"));
    m_alternate->setObjectName(QStringLiteral("TovraConfirmAlternate"));
    m_cancel->setObjectName(QStringLiteral("TovraConfirmCancel"));
    m_accept->setDefault(true);
    m_accept->setProperty("tovraDestructive", QStringLiteral("false"));
    m_alternate->hide();
    //: Button
    m_cancel->setText(tr("Cancel"));

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch(1);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_alternate);
    buttons->addWidget(m_accept);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 20);
    layout->setSpacing(12);
    layout->addWidget(m_title);
    layout->addWidget(m_message);
    layout->addSpacing(8);
    layout->addLayout(buttons);

    connect(m_accept, &QPushButton::clicked, this, [this] { done(Accepted); });
    connect(m_alternate, &QPushButton::clicked, this, [this] { done(Alternate); });
    connect(m_cancel, &QPushButton::clicked, this, [this] { done(Cancelled); });

    // A dialog from the tray has no window to inherit from; the application palette carries
    // the desktop's light or dark choice, and a parent window carries ours. Contrast is the
    // desktop's alone.
    const QPalette source = parent ? parent->window()->palette() : QApplication::palette();
    ThemeEngine::applyToWindow(this, ThemeEngine::buildColors(ThemeEngine::appearanceOf(source),
                                                              DesktopColorScheme().contrast()));
    TovraDialogTitleBarThemer::attach(this);
}

void ConfirmDialog::setTitle(const QString &title)
{
    setWindowTitle(title);
    m_title->setText(title);
}

void ConfirmDialog::setMessage(const QString &message)
{
    m_message->setText(message);
}

void ConfirmDialog::configure(QPushButton *button, const QString &text, const QString &description)
{
    button->setText(text);
    button->setToolTip(description);
    button->setAccessibleDescription(description);
}

void ConfirmDialog::setAcceptButton(const QString &text, const QString &description)
{
    configure(m_accept, text, description);
}

void ConfirmDialog::setAlternateButton(const QString &text, const QString &description)
{
    configure(m_alternate, text, description);
    m_alternate->setVisible(!text.isEmpty());
}

void ConfirmDialog::setCancelButton(const QString &text, const QString &description)
{
    configure(m_cancel, text, description);
}

void ConfirmDialog::setDestructive(bool destructive)
{
    m_accept->setProperty("tovraDestructive",
                          destructive ? QStringLiteral("true") : QStringLiteral("false"));
    m_accept->style()->unpolish(m_accept);
    m_accept->style()->polish(m_accept);
    m_accept->update();
}
