#pragma once

#include "RequestButton.h"

class QLabel;

// One routing mode as a card: its name over a one-line description. Checkable, but the click
// only asks; the page checks the card of the mode the daemon reports.
class ModeOptionButton : public RequestButton
{
    Q_OBJECT

public:
    ModeOptionButton(const QString &title, const QString &description, QWidget *parent = nullptr);

    QString title() const;
    QString description() const;
    // Marks the card as one the user is asked to pick from.
    void setHighlighted(bool highlighted);
    bool isHighlighted() const { return m_highlighted; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    void checkStateSet() override;

private:
    void updateState();

    QLabel *m_title;
    QLabel *m_description;
    bool m_highlighted = false;
};
