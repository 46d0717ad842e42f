#pragma once

// What the desktop says about its colour scheme.
enum class DesktopScheme { Unknown, Light, Dark };

// What the desktop says about contrast; High asks for the strong variant of the theme.
enum class Contrast { Normal, High };
