#include "TessaroApp.h"

int main(int argc, char** argv) {
    return tessaro::TessaroApp().run(argc, argv);
}
