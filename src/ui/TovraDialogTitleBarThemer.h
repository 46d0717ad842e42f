#pragma once

#include <QColor>
#include <QObject>

class QDialog;

// Keeps a dialog's native title bar in step with its palette on platforms that allow it.
class TovraDialogTitleBarThemer : public QObject
{
    Q_OBJECT

public:
    // Becomes a child of the dialog and watches its show and palette-change events.
    static TovraDialogTitleBarThemer *attach(QDialog *dialog);

    explicit TovraDialogTitleBarThemer(QDialog *dialog);

    // How many times the platform hook ran; lets a caller confirm the themer is attached.
    int applyCount() const { return m_applyCount; }
    bool lastDark() const { return m_lastDark; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void apply(QDialog *dialog);
    // Linux window managers draw their own decorations: nothing to do here.
    static void applyPlatformTitleBar(QDialog *dialog, const QColor &background,
                                      const QColor &foreground, bool dark);

    int m_applyCount = 0;
    bool m_lastDark = false;
};
