#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tarvo {

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

/// Screen coordinates, origin at the top left.
struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Rect&) const = default;
};

/// Colours that the desktop's palette gives, light or dark.
enum class SystemColor { label, secondaryLabel, red, orange, green, blue, purple };

enum class FontWeight { regular, medium, semibold };

struct TextFont {
    double pointSize = 12;
    FontWeight weight = FontWeight::regular;
    bool monospacedDigits = false;
    bool operator==(const TextFont&) const = default;
};

struct TextRun {
    std::string text; ///< UTF-8; a line feed ends a line
    std::optional<TextFont> font;
    std::optional<SystemColor> color;
    bool operator==(const TextRun&) const = default;
};

/// Text with attributes; without runs' own font and colour the button's are used.
struct AttributedTitle {
    std::vector<TextRun> runs;
    bool centred = false;
    std::optional<double> maximumLineHeight; ///< points; absent: the font's own
    bool operator==(const AttributedTitle&) const = default;
};

/// A picture by its system symbol name, e.g. "cpu.fill".
struct SymbolImage {
    std::string name;
    std::string accessibilityDescription;
    bool isTemplate = true; ///< drawn in the tint or the label colour
    bool operator==(const SymbolImage&) const = default;
};

/// A drawing of round-capped, round-joined lines, independent of resolution. Origin at the bottom left, y
/// upwards; what lies outside the size is clipped. Never a template: it carries its own colours.
struct LineDrawing {
    struct Stroke {
        SystemColor color = SystemColor::label;
        double width = 1;
        std::vector<Point> points;
        bool operator==(const Stroke&) const = default;
    };
    double width = 0;
    double height = 0;
    std::vector<Stroke> strokes;
    bool operator==(const LineDrawing&) const = default;
};

using StatusImage = std::variant<std::monostate, SymbolImage, LineDrawing>;

struct MenuRow {
    std::string title; ///< empty: a separator
    std::string keyEquivalent;
    std::function<void()> action;
};
using Menu = std::vector<MenuRow>;

enum class StatusClick { left, right };

/// The clickable part of a status item. Hosts repaint only what a call changed.
class StatusButton {
public:
    virtual ~StatusButton() = default;
    virtual void setFont(const TextFont& font) = 0;
    /// Plain text in the button's font; takes the place of an attributed title.
    virtual void setTitle(const std::string& title) = 0;
    /// Takes the place of the plain title.
    virtual void setAttributedTitle(const AttributedTitle& title) = 0;
    /// Shown left of the title.
    virtual void setImage(const StatusImage& image) = 0;
    /// Absent: the desktop's own colour.
    virtual void setContentTint(std::optional<SystemColor> tint) = 0;
    /// The same facts in plain text, lines separated by a line feed; for hosts that cannot show the rest.
    virtual void setToolTip(const std::string& text) = 0;
    /// Runs on left and right mouse-up. No value: clicked by the program.
    virtual void setAction(std::function<void(std::optional<StatusClick>)> action) = 0;
    /// Clicks the button for the user: opens the item's menu when it has one, else runs the action.
    virtual void performClick() = 0;
    /// Absent where the host does not tell.
    virtual std::optional<Rect> screenRect() const = 0;
};

/// One item of variable length; destroying it removes it from the bar.
class StatusItem {
public:
    virtual ~StatusItem() = default;
    /// Never null for hosts of this program; null where a platform has taken the button away.
    virtual StatusButton* button() = 0;
    /// While a menu is attached, a click opens it. An absent menu detaches.
    virtual void setMenu(std::optional<Menu> menu) = 0;
    /// For hosts that open the context menu by themselves: asked for the rows each time.
    virtual void setMenuSource(std::function<Menu()> source) = 0;
};

/// Where status items live. Main thread only.
class StatusBar {
public:
    virtual ~StatusBar() = default;
    virtual std::unique_ptr<StatusItem> makeItem() = 0;
    /// False where no button ever knows its place on the screen, so that nobody need ask.
    virtual bool tellsPlaces() const { return true; }
};

} // namespace tarvo
