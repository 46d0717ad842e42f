#pragma once

#include <QPixmap>
#include <QString>
#include <QStringList>

// One shared lookup from a two-letter country code to its translated name and its flag.
// Codes are trimmed and lower-cased first; both caches are process-wide and built on first use.

// The translated name ("Countries" context); an unknown code shows upper-cased, a blank one as
// the trimmed input.
QString countryName(const QString &code);
// The untranslated table name (the translation key), or an empty text for an unknown code.
QString countryEnglishName(const QString &code);
// A group the daemon names after a continent, in the user's language ("Continents" context);
// any other name as it stands.
QString continentName(const QString &name);
// The flag for 24 logical pixels wide, or the "unknown" flag; null for a blank code.
QPixmap countryFlag(const QString &code);
// The same flag made for a screen of that device pixel ratio: exactly 24 x 16 logical pixels in
// whole device pixels, scaled smoothly once and cached, so that painting only copies it.
QPixmap countryFlag(const QString &code, qreal devicePixelRatio);
// Forgets every flag this loader put into the pixmap cache.
void clearFlagCache();
// Every known code, in the table's order (by English name).
QStringList countryCodes();
