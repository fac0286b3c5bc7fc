#include "platform/macos/text_style.h"

#include "platform/macos/foundation_text.h"

namespace tarvo::macos_platform {
namespace {

NSFontWeight fontWeight(FontWeight weight) {
    switch (weight) {
    case FontWeight::regular:
        return NSFontWeightRegular;
    case FontWeight::medium:
        return NSFontWeightMedium;
    case FontWeight::semibold:
        return NSFontWeightSemibold;
    }
    return NSFontWeightRegular;
}

NSAttributedString* attributedRun(const TextRun& run) {
    NSMutableDictionary<NSAttributedStringKey, id>* const attributes = [NSMutableDictionary dictionary];
    if (run.font) attributes[NSFontAttributeName] = systemFont(*run.font);
    if (run.color) attributes[NSForegroundColorAttributeName] = systemColor(*run.color);
    return [[NSAttributedString alloc] initWithString:systemText(run.text) attributes:attributes];
}

NSParagraphStyle* paragraphStyle(const AttributedTitle& title) {
    NSMutableParagraphStyle* const style = [[NSMutableParagraphStyle alloc] init];
    if (title.centred) style.alignment = NSTextAlignmentCenter;
    style.lineSpacing = 0;
    if (title.maximumLineHeight) style.maximumLineHeight = *title.maximumLineHeight;
    return style;
}

} // namespace

NSColor* systemColor(SystemColor color) {
    switch (color) {
    case SystemColor::label:
        return NSColor.labelColor;
    case SystemColor::secondaryLabel:
        return NSColor.secondaryLabelColor;
    case SystemColor::red:
        return NSColor.systemRedColor;
    case SystemColor::orange:
        return NSColor.systemOrangeColor;
    case SystemColor::green:
        return NSColor.systemGreenColor;
    case SystemColor::blue:
        return NSColor.systemBlueColor;
    case SystemColor::purple:
        return NSColor.systemPurpleColor;
    }
    return NSColor.labelColor;
}

NSFont* systemFont(const TextFont& font) {
    const NSFontWeight weight = fontWeight(font.weight);
    if (font.monospacedDigits) return [NSFont monospacedDigitSystemFontOfSize:font.pointSize weight:weight];
    return [NSFont systemFontOfSize:font.pointSize weight:weight];
}

NSAttributedString* attributedString(const AttributedTitle& title) {
    NSMutableAttributedString* const text = [[NSMutableAttributedString alloc] init];
    for (const TextRun& run : title.runs)
        [text appendAttributedString:attributedRun(run)];
    [text addAttribute:NSParagraphStyleAttributeName
                 value:paragraphStyle(title)
                 range:NSMakeRange(0, text.length)];
    return text;
}

} // namespace tarvo::macos_platform
