#include "WindowFixture.h"

#include "PageStack.h"

MainWindow *WindowFixture::show()
{
    controller.showOrRaise();
    auto *stack = window()->findChild<PageStack *>();
    for (int index = 0; index < stack->count(); ++index)
        stack->page(index);
    return window();
}
