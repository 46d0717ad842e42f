#pragma once

#include <QStandardItemModel>

// Sample locations for the gallery: every badge, ping range and favourite state once.
class GalleryModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit GalleryModel(QObject *parent = nullptr);

    // Flips a row's favourite flag, as a catalogue model would after the daemon agreed.
    void setFavorite(const QString &nodeId, bool favorite);
};
