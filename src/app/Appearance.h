#pragma once
// Whether the program is drawn in dark colours. The desktop's palette
// decides: a dark window background means the dark appearance, whatever
// style or theme produced it. Tool windows and delegates ask here instead of
// guessing from the style name.

class QPalette;

namespace Appearance {

// True when the palette's window colour is dark.
bool isDark(const QPalette& palette);
// The same for the application's palette.
bool isDark();

}  // namespace Appearance
