#pragma once

#include <QObject>

class QLabel;

// Lines labels up with their layout's leading edge instead of with their text's own direction.
// Qt aligns a label's text by the direction of the text itself, so in a right-to-left window a
// version, an address, an English message from the daemon or an untranslated product name would
// hug the left edge while everything around it starts at the right. Installed once on the
// application, this turns a label's leading (or trailing) alignment into the matching absolute
// side when the label is first polished and whenever its direction changes. Centred, justified
// and absolute alignments are left as they are.
class LayoutAlignedLabels : public QObject
{
    Q_OBJECT

public:
    // Once per application; later calls do nothing.
    static void install();
    // Aligns one label now, for a label whose alignment changed after it was first shown.
    static void align(QLabel *label);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;
};
