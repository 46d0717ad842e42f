#pragma once

#include <QAbstractButton>

// An on/off switch that never flips itself: a click only asks for the other state, and the
// owner sets the state once it has accepted it.
class ToggleSwitch : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ToggleSwitch(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Where the track and the thumb are painted in the current state and direction.
    QRectF trackRect() const;
    QRectF thumbRect() const;

Q_SIGNALS:
    void toggleRequested(bool checked);

protected:
    bool hitButton(const QPoint &pos) const override;
    void nextCheckState() override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QColor themeColor(const char *property, const QColor &fallback) const;
};
