#pragma once

#include <QStackedWidget>

#include <functional>
#include <vector>

// The window's pages. A page added with a factory is built on first use, or in the background
// once asked to, one page per event-loop turn: the window paints its first page without waiting
// for the others, and no turn blocks input for long. The size hints are the shown page's only,
// since a plain stack lays out the text of every page to measure itself; the pages scroll.
class PageStack : public QStackedWidget
{
    Q_OBJECT

public:
    using Factory = std::function<QWidget *(QWidget *parent)>;

    explicit PageStack(QWidget *parent = nullptr);

    // Returns the page's index; a placeholder stands in until the page is built.
    int addPage(Factory factory);
    // The page at index, built now if it was not yet.
    QWidget *page(int index);
    bool isBuilt(int index) const;
    bool allBuilt() const;
    void buildRemainingPages();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void pageBuilt(int index, QWidget *page);

private:
    void buildNextPage();

    std::vector<Factory> m_factories; // an empty one once its page is built
    bool m_buildScheduled = false;
};
