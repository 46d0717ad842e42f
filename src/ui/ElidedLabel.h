#pragma once

#include <QLabel>

// A one-line label that elides its text to the width it gets instead of demanding the full
// width; the full text stays the label's text (and so its accessible name) and shows as a tool
// tip while it is cut.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);
    explicit ElidedLabel(const QString &text, QWidget *parent = nullptr);

    void setElideMode(Qt::TextElideMode mode);
    Qt::TextElideMode elideMode() const { return m_elideMode; }

    bool isElided() const;
    QString displayedText() const;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

    // The width left for text after whatever a subclass draws beside it.
    virtual int textWidth() const;
    virtual QRect textRect() const;

private:
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
};
