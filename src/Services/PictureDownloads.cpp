#include "Services/PictureDownloads.h"

namespace tessaro {

AsyncSemaphore& pictureDownloads() {
    static AsyncSemaphore places(6);
    return places;
}

} // namespace tessaro
