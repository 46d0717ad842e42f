#include "LayoutAlignedLabels.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>

namespace {

// The side a label asked for ("leading", "trailing" or "kept") and the alignment set for it,
// so that an alignment its owner sets later is read afresh.
const char *const kSide = "tovraLabelSide";
const char *const kApplied = "tovraLabelAligned";

} // namespace

void LayoutAlignedLabels::install()
{
    static LayoutAlignedLabels *filter = nullptr;
    if (filter || !qApp)
        return;
    filter = new LayoutAlignedLabels(qApp);
    qApp->installEventFilter(filter);
}

void LayoutAlignedLabels::align(QLabel *label)
{
    const Qt::Alignment current = label->alignment();
    QString side = label->property(kSide).toString();
    if (side.isEmpty() || label->property(kApplied).toInt() != int(current)) {
        // Qt::AlignLeft without Qt::AlignAbsolute is the leading edge, as everywhere in Qt.
        const Qt::Alignment horizontal = current & Qt::AlignHorizontal_Mask;
        side = horizontal == Qt::AlignLeft    ? QStringLiteral("leading")
               : horizontal == Qt::AlignRight ? QStringLiteral("trailing")
                                              : QStringLiteral("kept");
        label->setProperty(kSide, side);
    }
    if (side == QLatin1String("kept")) {
        label->setProperty(kApplied, int(current));
        return;
    }
    const bool right = (side == QLatin1String("leading")) == label->isRightToLeft();
    const Qt::Alignment aligned = (current & ~Qt::AlignHorizontal_Mask) | Qt::AlignAbsolute |
                                  (right ? Qt::AlignRight : Qt::AlignLeft);
    label->setProperty(kApplied, int(aligned));
    if (aligned != current)
        label->setAlignment(aligned);
}

bool LayoutAlignedLabels::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Polish || type == QEvent::LayoutDirectionChange) {
        if (auto *label = qobject_cast<QLabel *>(watched))
            align(label);
    }
    return false;
}
