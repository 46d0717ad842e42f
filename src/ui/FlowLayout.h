#pragma once

#include <QLayout>
#include <QList>

// Lays items out in rows that wrap at the available width, like words in a paragraph, starting
// from the leading edge of the layout direction.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(QWidget *parent = nullptr, int horizontalSpacing = 8,
                        int verticalSpacing = 8);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    int horizontalSpacing() const { return m_hSpacing; }
    int verticalSpacing() const { return m_vSpacing; }

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    int doLayout(const QRect &rect, bool apply) const;

    QList<QLayoutItem *> m_items;
    int m_hSpacing;
    int m_vSpacing;
};
