#pragma once

#include "Platform/GHandle.h"
#include "Platform/Task.h"

#include <string>
#include <vector>

using GdkDrop = struct _GdkDrop;

namespace tessaro {

/// A file or a picture that the person has copied in another program, or dragged here from one.
struct OfferedFile {
    std::string name;
    std::string type;                 ///< Its media type (RFC 2046).
    GObjectPtr<GFile> file;           ///< Null for a picture that is in no file.
    GObjectPtr<GInputStream> content; ///< Of such a picture; of a file once it is being read.
};

/// The files on the clipboard, or else its picture as a PNG, JPEG or WebP. Files that this process
/// has put there itself are left out: a page may have named them. Folders and devices too. UI
/// thread only.
Task<std::vector<OfferedFile>> filesOnClipboard();

/// The files of a drag that another program has begun. To be called before the drop is finished.
Task<std::vector<OfferedFile>> filesOf(GObjectPtr<GdkDrop> drop);

/// Opens it for reading; null where that fails.
Task<GObjectPtr<GInputStream>> openFile(GObjectPtr<GFile> file);

/// The next part; empty at the end, null where reading fails.
Task<GBytesPtr> readPart(GObjectPtr<GInputStream> content);

} // namespace tessaro
