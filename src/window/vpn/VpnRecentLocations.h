#pragma once

#include "RecentLocation.h"

#include <QFrame>
#include <QList>

class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

// The recent locations card: one button per location, newest first, and Clear.
class VpnRecentLocations : public QFrame
{
    Q_OBJECT

public:
    explicit VpnRecentLocations(QWidget *parent = nullptr);

    void setLocations(const QList<RecentLocation> &locations);
    void setConnectEnabled(bool enabled);
    QList<QPushButton *> rows() const { return m_rows; }
    QPushButton *clearButton() const { return m_clear; }

Q_SIGNALS:
    void locationChosen(const RecentLocation &location);
    void clearRequested();

private:
    QVBoxLayout *m_list;
    QScrollArea *m_scroll = nullptr;
    QPushButton *m_clear;
    QLabel *m_empty;
    QList<QPushButton *> m_rows;
    bool m_connectEnabled = true;
};
