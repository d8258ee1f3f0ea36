#pragma once

#include <string>

/// The fixed texts that are run inside the inbox page. Each may run any number of times and leaves
/// at most one style element behind, found by its id.
namespace tessaro::scripts {

/// Darkens the page: everything is inverted and its hues turned by half a circle, pictures and
/// videos twice, so that they keep their colours. Element "__tsr_darkmode".
extern const char* const darkModeStyle;

/// Takes the dark style away again.
extern const char* const darkModeRemover;

/// Hides the site's own top bar and disables its side navigation. Element "__tsr_topbar_hide".
const std::string& topBarHider();

/// Yields what topBarHider() had to do as words and numbers: how many elements each of its
/// selectors finds, and how many parts of a navigation are seen all the same at the left edge and
/// above. Nothing of the page's content is among it. Begins with "0 found" where it found none.
const std::string& navigationCount();

/// Puts the cursor into the first visible search field, where there is one.
extern const char* const searchFieldFocuser;

} // namespace tessaro::scripts
