#pragma once

#include "interface/AttributedString.h"
#include "interface/Color.h"
#include "interface/Geometry.h"
#include "protocol/NonCopyable.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace zarvil {

struct RoundedRect {
    Rect rect;
    /// No larger than half of the sides takes effect.
    Size radii;
    friend bool operator==(const RoundedRect&, const RoundedRect&) = default;
};

/// The ellipse that fills a rectangle.
struct Oval {
    Rect rect;
    friend bool operator==(const Oval&, const Oval&) = default;
};

struct Line {
    Point from;
    Point to;
    friend bool operator==(const Line&, const Line&) = default;
};

using Path = std::variant<Rect, RoundedRect, Oval, Line>;

/// The same path, moved.
[[nodiscard]] Path translated(const Path& path, double dx, double dy);
/// Smallest rectangle around a path; a negative size stays negative.
[[nodiscard]] Rect boundsOf(const Path& path);

struct GradientStop {
    double location; ///< from 0, the start, to 1, the end
    Color color;
    friend bool operator==(const GradientStop&, const GradientStop&) = default;
};

/// Colors that run into each other along a line.
struct Gradient {
    std::vector<GradientStop> stops;

    /// Spreads the colors from the start to the end at equal distances.
    [[nodiscard]] static Gradient evenlySpaced(const std::vector<Color>& colors);
    friend bool operator==(const Gradient&, const Gradient&) = default;
};

/// Start and end of a gradient's line, in the coordinates of the rectangle that it fills.
struct GradientAxis {
    Point start;
    Point end;
};

/// The axis through the middle of a rectangle at an angle in degrees that leads from the x axis to
/// the y axis, so long that the first and the last color fall on the outermost corners.
[[nodiscard]] GradientAxis gradientAxis(const Rect& rect, double angle);

struct Shadow {
    Color color;
    /// In points; the blur is a Gaussian whose standard deviation is half of this.
    double blurRadius = 0;
    /// In points of the screen: positive heights lead up, whatever way the view's y grows.
    Size offset;
    friend bool operator==(const Shadow&, const Shadow&) = default;
};

enum class BlendMode : std::uint8_t { SourceOver, Lighten, Clear };

struct TextStyle {
    /// Size of text that asks for none, in points.
    static constexpr double defaultFontSize = 12;

    /// In points, of the system's font.
    double fontSize = defaultFontSize;
    Color color = color::white;
    TextAlignment alignment = TextAlignment::Left;
    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

class Canvas;

/// A picture of a front end's own making.
class Image : NonCopyable {
public:
    virtual ~Image() = default;

    /// In points.
    [[nodiscard]] virtual Size size() const = 0;
};

/// Makes pictures that canvases of the same front end can draw.
class ImageRenderer : NonCopyable {
public:
    using Drawing = std::function<void(Canvas&)>;

    virtual ~ImageRenderer() = default;

    /// The drawing's y grows upwards. It must own what it uses: it may be called later, and again
    /// when the picture comes to a screen of another pixel density.
    [[nodiscard]] virtual std::shared_ptr<const Image> render(Size size, Drawing drawing) = 0;
};

/// What drawn controls draw on, in a view's coordinates. Shadow and blend mode are part of the
/// state and hold for each fill and stroke; text and images cast no shadow.
class Canvas : NonCopyable {
public:
    virtual ~Canvas() = default;

    /// Whether y grows downwards.
    [[nodiscard]] virtual bool isFlipped() const = 0;

    // State: clip, shadow, blend mode.
    virtual void saveState() = 0;
    virtual void restoreState() = 0;
    /// Narrows the clip to what is inside the path, with smooth edges.
    virtual void clip(const Path& path) = 0;
    virtual void setShadow(const Shadow& shadow) = 0;
    virtual void setBlendMode(BlendMode mode) = 0;
    /// What follows, up to the matching end, is put together on its own and then drawn as one
    /// picture with the state of this moment. The layer begins without shadow, in source-over.
    virtual void beginTransparencyLayer() = 0;
    virtual void endTransparencyLayer() = 0;

    // Drawing. A shadow falls beneath its shape, with the shape's alpha, in the same blend mode.
    virtual void fill(const Path& path, const Color& color) = 0;
    virtual void stroke(const Path& path, const Color& color, double width) = 0;
    /// Fills the path; the gradient's axis is that of the path's bounds.
    virtual void fill(const Path& path, const Gradient& gradient, double angle) = 0;
    /// Draws the whole image. One that another front end made is left out.
    virtual void drawImage(const Image& image, const Rect& rect, double fraction) = 0;

    // Text, in one line unless it is wider than its rectangle.
    [[nodiscard]] virtual Size sizeOfText(std::string_view text, const TextStyle& style) const = 0;
    /// Starts at the rectangle's upper edge; lines that do not fit are cut off.
    virtual void drawText(std::string_view text, const Rect& rect, const TextStyle& style) = 0;
};

} // namespace zarvil
