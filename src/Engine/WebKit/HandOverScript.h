#pragma once

namespace tessaro {

/// What runs before the scripts of every frame, in a world of its own. It takes the place of a
/// paste of files or of a picture, and of each event of a drag of files, and gives the page the
/// same event with `File`s. It asks the message handler "files":
///   "copied", "dropped"   for what there is, as [{id, name, type}]
///   an id                 for the next part of that file in base64; "" at its end
extern const char* const handOverScript;

} // namespace tessaro
