#pragma once

#include <QAbstractButton>

// A clickable one-line text with a chevron at its trailing edge: "go there" (forward) or
// "opens below" (down). The text elides; the chevron always stays visible.
class ChevronLabel : public QAbstractButton
{
    Q_OBJECT

public:
    enum class Chevron { Forward, Down };

    explicit ChevronLabel(const QString &text = QString(), QWidget *parent = nullptr);

    void setChevron(Chevron chevron);
    Chevron chevron() const { return m_chevron; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Where the text and the chevron are painted; the chevron follows the layout direction.
    QRect textRect() const;
    QRect chevronRect() const;
    QString displayedText() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    Chevron m_chevron = Chevron::Forward;
};
