#pragma once

#include "platform/Canvas.h"

#include <array>
#include <charconv>
#include <string>
#include <vector>

namespace zarvil::fake {

/// Writes down what is drawn on it, one line a call, with numbers in full. Text measures 8 points
/// a byte in width and its font size in height.
class RecordingCanvas final : public Canvas {
public:
    explicit RecordingCanvas(bool flipped = true) : flipped_(flipped) {}

    bool isFlipped() const override { return flipped_; }
    void saveState() override { log.emplace_back("save"); }
    void restoreState() override { log.emplace_back("restore"); }
    void clip(const Path& path) override { log.push_back("clip " + text(path)); }
    void setShadow(const Shadow& shadow) override {
        log.push_back("shadow " + text(shadow.color) + " blur " + text(shadow.blurRadius) +
                      " offset " + text(shadow.offset));
    }
    void setBlendMode(BlendMode mode) override {
        static constexpr std::array names{"over", "lighten", "clear"};
        log.push_back(std::string("blend ") + names.at(static_cast<std::size_t>(mode)));
    }
    void beginTransparencyLayer() override { log.emplace_back("layer"); }
    void endTransparencyLayer() override { log.emplace_back("end layer"); }
    void fill(const Path& path, const Color& color) override {
        log.push_back("fill " + text(path) + " " + text(color));
    }
    void stroke(const Path& path, const Color& color, double width) override {
        log.push_back("stroke " + text(path) + " " + text(color) + " width " + text(width));
    }
    void fill(const Path& path, const Gradient& gradient, double angle) override {
        std::string line = "gradient " + text(path) + " angle " + text(angle);
        for (const GradientStop& stop : gradient.stops)
            line += " " + text(stop.location) + ":" + text(stop.color);
        log.push_back(line);
    }
    void drawImage(const Image& image, const Rect& rect, double fraction) override {
        log.push_back("image " + text(image.size()) + " in " + text(rect) + " fraction " +
                      text(fraction));
    }
    Size sizeOfText(std::string_view string, const TextStyle& style) const override {
        return {8.0 * static_cast<double>(string.size()), style.fontSize};
    }
    void drawText(std::string_view string, const Rect& rect, const TextStyle& style) override {
        log.push_back("text " + std::string(string) + " in " + text(rect) + " size " +
                      text(style.fontSize) + " " + text(style.color) +
                      (style.alignment == TextAlignment::Centered ? " centered" : ""));
    }

    /// The lines that begin with a word, in order.
    std::vector<std::string> lines(std::string_view word) const {
        std::vector<std::string> found;
        for (const std::string& line : log)
            if (line.starts_with(std::string(word) + " "))
                found.push_back(line);
        return found;
    }

    std::vector<std::string> log;

private:
    static std::string text(double number) {
        std::array<char, 32> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
        return {digits.data(), end.ptr};
    }
    static std::string text(const Size& size) {
        return "(" + text(size.width) + ", " + text(size.height) + ")";
    }
    static std::string text(const Point& point) {
        return "(" + text(point.x) + ", " + text(point.y) + ")";
    }
    static std::string text(const Rect& rect) {
        return "(" + text(rect.x) + ", " + text(rect.y) + ", " + text(rect.width) + ", " +
               text(rect.height) + ")";
    }
    /// A gray is "white/alpha", any other color "red,green,blue/alpha".
    static std::string text(const Color& color) {
        if (color.red == color.green && color.green == color.blue)
            return text(color.red) + "/" + text(color.alpha);
        return text(color.red) + "," + text(color.green) + "," + text(color.blue) + "/" +
               text(color.alpha);
    }
    static std::string text(const Path& path) {
        struct Writer {
            std::string operator()(const Rect& rect) const { return "rect" + text(rect); }
            std::string operator()(const RoundedRect& rounded) const {
                return "rounded" + text(rounded.rect) + text(rounded.radii);
            }
            std::string operator()(const Oval& oval) const { return "oval" + text(oval.rect); }
            std::string operator()(const Line& line) const {
                return "line" + text(line.from) + text(line.to);
            }
        };
        return std::visit(Writer{}, path);
    }

    bool flipped_;
};

/// Draws each picture at once and counts them.
class ImageRenderer final : public zarvil::ImageRenderer {
public:
    std::shared_ptr<const Image> render(Size size, Drawing drawing) override {
        struct Sized final : Image {
            explicit Sized(Size given) : points(given) {}
            Size size() const override { return points; }
            Size points;
        };
        ++rendered;
        RecordingCanvas canvas(false);
        drawing(canvas);
        latestLog = canvas.log;
        return std::make_shared<Sized>(size);
    }

    int rendered = 0;
    std::vector<std::string> latestLog;
};

} // namespace zarvil::fake
