#pragma once

#include <QCoreApplication>

class QLineEdit;

// The clear button inside a line edit, with a name: Qt's own has none, so a screen reader would
// read it as an unlabelled button.
class FieldClearButton
{
    Q_DECLARE_TR_FUNCTIONS(FieldClearButton)

public:
    enum class Kind { Search, Text };

    // Turns the field's clear button on and names it ("Clear search"); the name is its tool tip.
    static void enable(QLineEdit *field, Kind kind);
};
