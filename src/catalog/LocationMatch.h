#pragma once

#include <QString>

// One row a search finds in the locations catalogue: a node, or a group that matches by its own
// words (a country found by its name, not a continent kept for one of its cities).
struct LocationMatch
{
    bool group = false;
    QString name;
    QString parentName;
    // The node id, or the group's selector.
    QString target;
    QString flagCode;
    bool locked = false;
    QString toolTip;
};
