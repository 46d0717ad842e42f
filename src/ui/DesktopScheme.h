#pragma once

// What the desktop says about its colour scheme.
enum class DesktopScheme { Unknown, Light, Dark };
