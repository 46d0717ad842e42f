#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

// One line of a settings card: a label with a muted hint under it on the leading side, the
// control on the trailing side, and room for a full-width part below (an editor, a list).
class SettingsRow : public QFrame
{
    Q_OBJECT

public:
    SettingsRow(const QString &label, const QString &hint, QWidget *parent = nullptr);

    // The control at the trailing end. A button keeps its own name (what it does) and is
    // described by the row's label and hint; any other control is named by the label and
    // described by the hint, which it follows as the hint changes.
    void setControl(QWidget *control);
    // A widget spanning the row's width under the label.
    void addBelow(QWidget *widget);
    void setHint(const QString &hint);
    QString hint() const;
    QLabel *labelWidget() const { return m_label; }

private:
    void describeControl();

    QWidget *m_control = nullptr;
    bool m_describesControl = false;
    bool m_controlIsAction = false;
    QVBoxLayout *m_column;
    QHBoxLayout *m_top;
    QLabel *m_label;
    QLabel *m_hint;
};
