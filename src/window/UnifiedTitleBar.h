#pragma once

class QWidget;

// Platforms that draw the window's content under the title bar need to know its height and to
// start a system move from a click on the content. Linux window managers draw their own title
// bars, so here the hooks report none and do nothing.
class UnifiedTitleBar
{
public:
    static bool isUnified(const QWidget *window);
    static int height(const QWidget *window);
    // Returns true when the platform took over the drag.
    static bool startSystemMove(QWidget *window);
};
