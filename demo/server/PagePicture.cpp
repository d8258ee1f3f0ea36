#include "PagePicture.h"

#include "Platform/GHandle.h"

#include <cairo.h>

#include <numbers>

namespace tessaro::demo {

namespace {

using Surface = std::unique_ptr<cairo_surface_t, Releaser<cairo_surface_destroy>>;
using Drawing = std::unique_ptr<cairo_t, Releaser<cairo_destroy>>;
using Pattern = std::unique_ptr<cairo_pattern_t, Releaser<cairo_pattern_destroy>>;

struct Color {
    double red, green, blue;
};

constexpr double turn = 2 * std::numbers::pi;

void fill(cairo_t* drawing, Color color) {
    cairo_set_source_rgb(drawing, color.red, color.green, color.blue);
    cairo_fill(drawing);
}

// Everything below is drawn on a square of 100 units.

void paintGround(cairo_t* drawing, Color top, Color bottom) {
    const Pattern gradient(cairo_pattern_create_linear(0, 0, 60, 100));
    cairo_pattern_add_color_stop_rgb(gradient.get(), 0, top.red, top.green, top.blue);
    cairo_pattern_add_color_stop_rgb(gradient.get(), 1, bottom.red, bottom.green, bottom.blue);
    cairo_set_source(drawing, gradient.get());
    cairo_paint(drawing);
}

void paintFlower(cairo_t* drawing) {
    paintGround(drawing, {0.99, 0.62, 0.66}, {0.87, 0.27, 0.46});
    for (int petal = 0; petal < 6; ++petal) {
        cairo_save(drawing);
        cairo_translate(drawing, 50, 50);
        cairo_rotate(drawing, turn * petal / 6);
        cairo_scale(drawing, 1, 1.45);
        cairo_arc(drawing, 0, -15, 11.5, 0, turn);
        cairo_restore(drawing);
        fill(drawing, {1, 0.96, 0.95});
    }
    cairo_arc(drawing, 50, 50, 12, 0, turn);
    fill(drawing, {0.98, 0.77, 0.24});
}

void paintCup(cairo_t* drawing) {
    paintGround(drawing, {0.55, 0.38, 0.29}, {0.29, 0.18, 0.13});
    cairo_set_source_rgb(drawing, 1, 0.95, 0.87);
    cairo_set_line_width(drawing, 6);
    cairo_arc(drawing, 68, 56, 10, -turn / 4, turn / 4);
    cairo_stroke(drawing);
    cairo_move_to(drawing, 26, 42);
    cairo_line_to(drawing, 68, 42);
    cairo_line_to(drawing, 68, 60);
    cairo_curve_to(drawing, 68, 80, 26, 80, 26, 60);
    cairo_close_path(drawing);
    fill(drawing, {1, 0.95, 0.87});
    cairo_set_source_rgba(drawing, 1, 0.95, 0.87, 0.8);
    cairo_set_line_width(drawing, 4);
    cairo_set_line_cap(drawing, CAIRO_LINE_CAP_ROUND);
    for (const double x : {38.0, 56.0}) {
        cairo_move_to(drawing, x, 34);
        cairo_curve_to(drawing, x - 6, 28, x + 6, 25, x, 18);
        cairo_stroke(drawing);
    }
}

void paintBook(cairo_t* drawing) {
    paintGround(drawing, {0.24, 0.55, 0.62}, {0.09, 0.28, 0.4});
    for (const int side : {-1, 1}) {
        cairo_move_to(drawing, 50, 34);
        cairo_curve_to(drawing, 50 + side * 10, 27, 50 + side * 22, 27, 50 + side * 30, 31);
        cairo_line_to(drawing, 50 + side * 30, 68);
        cairo_curve_to(drawing, 50 + side * 22, 64, 50 + side * 10, 64, 50, 71);
        cairo_close_path(drawing);
        fill(drawing, side < 0 ? Color{0.99, 0.95, 0.86} : Color{0.93, 0.87, 0.75});
    }
    cairo_rectangle(drawing, 64, 27, 8, 24);
    fill(drawing, {0.9, 0.42, 0.3});
}

} // namespace

std::string drawPicture(Motif motif, int size) {
    const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size, size));
    const Drawing drawing(cairo_create(surface.get()));
    cairo_scale(drawing.get(), size / 100.0, size / 100.0);
    switch (motif) {
    case Motif::none:
        break;
    case Motif::flower:
        paintFlower(drawing.get());
        break;
    case Motif::cup:
        paintCup(drawing.get());
        break;
    case Motif::book:
        paintBook(drawing.get());
        break;
    }
    std::string png;
    cairo_surface_write_to_png_stream(
        surface.get(),
        [](void* into, const unsigned char* data, unsigned length) noexcept {
            static_cast<std::string*>(into)->append(reinterpret_cast<const char*>(data), length);
            return CAIRO_STATUS_SUCCESS;
        },
        &png);
    return png;
}

} // namespace tessaro::demo
