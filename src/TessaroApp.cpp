#include "TessaroApp.h"

namespace tessaro {

int TessaroApp::run(int, char**) {
    return 0;
}

} // namespace tessaro
