#include "../tests/core/raster/Drawn.h"
#include "Input.h"
#include "controls/KXButtonCell.h"
#include "controls/ZVCollectionNoteView.h"
#include "controls/ZVMessageView.h"
#include "controls/ZVMessageViewButton.h"
#include "platform/Time.h"
#include "raster/RasterImage.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <vector>

/// Drawings of any shapes, sizes, scales and texts, on a bitmap of any size. Each is made twice,
/// with new memory and with memory that other drawings have used, and must come out the same.
namespace zarvil::fuzz {

namespace {

constexpr std::size_t mostCalls = 16;
constexpr std::size_t mostPixels = 20; // to a side

double number(Input& input) {
    static constexpr double infinity = std::numeric_limits<double>::infinity();
    static constexpr std::array odd{
        0.0,    -0.0,     0.5,      1e-9,
        1e-300, -1.0,     1e9,      -1e9,
        1e300,  -1e300,   infinity, -infinity,
        2.5e9,  32768.25, 1e17,     std::numeric_limits<double>::quiet_NaN()};
    const std::uint8_t choice = input.byte();
    if (choice < 32)
        return odd.at(choice % odd.size());
    return (static_cast<double>(choice) - 96) / 4 + static_cast<double>(input.byte()) / 256;
}

Rect rect(Input& input) { return {number(input), number(input), number(input), number(input)}; }

Color anyColor(Input& input) {
    const auto part = [&] { return static_cast<double>(input.byte()) / 255; };
    if (input.byte() == 1)
        return {number(input), number(input), number(input), number(input)};
    return {part(), part(), part(), part()};
}

Path anyPath(Input& input) {
    switch (input.below(4)) {
    case 0:
        return rect(input);
    case 1:
        return RoundedRect{rect(input), {number(input), number(input)}};
    case 2:
        return Oval{rect(input)};
    default:
        return Line{{number(input), number(input)}, {number(input), number(input)}};
    }
}

Gradient anyGradient(Input& input) {
    Gradient gradient;
    for (std::size_t count = input.below(4); count > 0; --count)
        gradient.stops.push_back({number(input), anyColor(input)});
    return gradient;
}

using Drawing = std::function<void(Canvas&)>;

struct NoClock final : Clock {
    double timeIntervalSinceReferenceDate() const override { return 0; }
};

Drawing drawnControl(Input& input) {
    const Rect frame = rect(input);
    const std::string title = input.text(12);
    const auto kind = input.below(4);
    const int state = static_cast<int>(input.below(3)) - 1;
    const double size = number(input);
    return [=](Canvas& canvas) {
        const NoClock clock;
        if (kind == 0) {
            KXButtonCell cell({}, clock);
            cell.setState(state);
            cell.setOnTitle(title);
            cell.setOffTitle(title);
            cell.setShowStateExtras(state != 0);
            cell.drawWithFrame(frame, nullptr, canvas);
        } else if (kind == 1) {
            ZVMessageViewButton cell;
            cell.setTitle(title);
            cell.setFontSize(size);
            cell.setHighlighted(state == 0);
            cell.drawInteriorWithFrame(frame, nullptr, canvas);
        } else if (kind == 2) {
            ZVCollectionNoteView view;
            view.setFrame(frame);
            view.drawRect(canvas);
        } else {
            RasterImageRenderer renderer;
            // A picture is as large as its view: not all that can be asked for is drawn here.
            constexpr double largest = 24;
            const auto kept = [](double side) { return side < largest ? side : largest; };
            ZVMessageView view(renderer, {0, 0, kept(frame.width), kept(frame.height)});
            view.drawRect(canvas);
        }
    };
}

Drawing anyCall(Input& input, double widestBlur) {
    switch (input.below(12)) {
    case 0:
        return [](Canvas& canvas) { canvas.saveState(); };
    case 1:
        return [](Canvas& canvas) { canvas.restoreState(); };
    case 2:
        return [path = anyPath(input)](Canvas& canvas) { canvas.clip(path); };
    case 3: {
        const double any = input.byte() == 1 ? number(input) : input.byte() / 64.0;
        const double blur = any > widestBlur ? widestBlur : any;
        const Shadow shadow{anyColor(input), blur, {number(input), number(input)}};
        return [shadow](Canvas& canvas) { canvas.setShadow(shadow); };
    }
    case 4: {
        const auto mode = static_cast<BlendMode>(input.below(3));
        return [mode](Canvas& canvas) { canvas.setBlendMode(mode); };
    }
    case 5:
        return [](Canvas& canvas) { canvas.beginTransparencyLayer(); };
    case 6:
        return [](Canvas& canvas) { canvas.endTransparencyLayer(); };
    case 7: {
        const Path path = anyPath(input);
        return [path, ink = anyColor(input)](Canvas& canvas) { canvas.fill(path, ink); };
    }
    case 8: {
        const Path path = anyPath(input);
        const Color ink = anyColor(input);
        return [=, width = number(input)](Canvas& canvas) { canvas.stroke(path, ink, width); };
    }
    case 9: {
        const Path path = anyPath(input);
        const Gradient ink = anyGradient(input);
        return [=, angle = number(input)](Canvas& canvas) { canvas.fill(path, ink, angle); };
    }
    case 10: {
        const std::string text = input.text(20);
        const Rect box = rect(input);
        const TextStyle style{number(input), anyColor(input),
                              input.flag() ? TextAlignment::Centered : TextAlignment::Left};
        return [=](Canvas& canvas) { canvas.drawText(text, box, style); };
    }
    default:
        return drawnControl(input);
    }
}

/// Premultiplied: no color is stronger than its alpha.
void checkPixels(const Bitmap& bitmap) {
    for (int y = 0; y < bitmap.height(); ++y)
        for (int x = 0; x < bitmap.width(); ++x) {
            const Pixel pixel = bitmap.row(y)[x];
            const Pixel alpha = pixel >> 48;
            for (const int shift : {0, 16, 32})
                require((pixel >> shift & 0xFFFF) <= alpha, "a premultiplied color");
        }
}

void draw(Bitmap& bitmap, RasterMemory& memory, const RasterView& view,
          const std::vector<Drawing>& calls) {
    BlockText text;
    RasterCanvas canvas(bitmap, memory, text, view);
    for (const Drawing& call : calls)
        call(canvas);
}

bool equal(const Bitmap& left, const Bitmap& right) {
    for (int y = 0; y < left.height(); ++y)
        if (!std::equal(left.row(y), left.row(y) + left.width(), right.row(y)))
            return false;
    return true;
}

void tryOne(Input& input) {
    const int width = static_cast<int>(input.below(mostPixels));
    const int height = static_cast<int>(input.below(mostPixels));
    static constexpr std::array scales{1.0, 2.0, 1.5, 1.25, 3.0, 0.1};
    const Orientation orientation = input.flag() ? Orientation::YUp : Orientation::YDown;
    const double scale = input.byte() == 1 ? number(input) : input.pick(scales);
    const RasterView view{{static_cast<double>(width), static_cast<double>(height)},
                          orientation,
                          scale > scales[4] ? scales[4] : scale,
                          {number(input), number(input)}};
    // A blur's cost grows with its square, and what a narrow one shows a wide one shows.
    constexpr double widest = 8; // pixels
    std::vector<Drawing> calls;
    while (!input.empty() && calls.size() < mostCalls)
        calls.push_back(anyCall(input, widest / view.scale));
    Bitmap once(width, height);
    RasterMemory fresh;
    draw(once, fresh, view, calls);
    checkPixels(once);
    static RasterMemory used;
    Bitmap again(width, height);
    draw(again, used, view, calls);
    require(equal(once, again), "a drawing comes out the same");
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(width * height * 4));
    once.copyTo(bytes.data(), static_cast<std::size_t>(width) * 4, PixelLayout::RgbaBytes);
    once.copyTo(bytes.data(), static_cast<std::size_t>(width) * 4, PixelLayout::Argb32Words);
}

} // namespace

} // namespace zarvil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    zarvil::fuzz::Input input(bytes, size);
    zarvil::fuzz::tryOne(input);
    return 0;
}
