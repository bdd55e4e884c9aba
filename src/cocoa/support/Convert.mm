#import "cocoa/support/Convert.h"

namespace zarvil::cocoa {

NSString* toCocoa(std::string_view text) {
    for (const NSStringEncoding encoding : {NSUTF8StringEncoding, NSISOLatin1StringEncoding}) {
        NSString* string = [[NSString alloc] initWithBytes:text.data()
                                                    length:text.size()
                                                  encoding:encoding];
        if (string)
            return [string autorelease];
    }
    return @"";
}

std::string fromCocoa(NSString* text) {
    NSData* bytes = [text dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
    const auto* start = static_cast<const char*>([bytes bytes]);
    return start ? std::string(start, [bytes length]) : std::string();
}

NSColor* toCocoa(const Color& color) {
    return [NSColor colorWithDeviceRed:color.red
                                 green:color.green
                                  blue:color.blue
                                 alpha:color.alpha];
}

Color colorFromCocoa(NSColor* color) {
    NSColor* device = [color colorUsingColorSpaceName:NSDeviceRGBColorSpace];
    if (!device)
        return Color{};
    return {[device redComponent],
            [device greenComponent],
            [device blueComponent],
            [device alphaComponent]};
}

NSTextAlignment toCocoa(TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::Right:
        return NSRightTextAlignment;
    case TextAlignment::Centered:
        return NSCenterTextAlignment;
    case TextAlignment::Left:
        break;
    }
    return NSLeftTextAlignment;
}

NSAttributedString* toCocoa(const AttributedString& text) {
    NSMutableAttributedString* styled = [[[NSMutableAttributedString alloc] init] autorelease];
    for (const auto& run : text.runs()) {
        NSMutableDictionary* attributes = [NSMutableDictionary dictionary];
        if (run.attributes.foregroundColor)
            [attributes setObject:toCocoa(*run.attributes.foregroundColor)
                           forKey:NSForegroundColorAttributeName];
        if (run.attributes.underlineStyle == UnderlineStyle::Single)
            [attributes setObject:[NSNumber numberWithInt:1] forKey:NSUnderlineStyleAttributeName];
        if (run.attributes.link) {
            if (NSURL* address = [NSURL URLWithString:toCocoa(*run.attributes.link)])
                [attributes setObject:address forKey:NSLinkAttributeName];
        }
        if (run.attributes.alignment) {
            NSMutableParagraphStyle* paragraph =
                [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
            [paragraph setAlignment:toCocoa(*run.attributes.alignment)];
            [attributes setObject:paragraph forKey:NSParagraphStyleAttributeName];
        }
        [styled appendAttributedString:[[[NSAttributedString alloc] initWithString:toCocoa(run.text)
                                                                        attributes:attributes]
                                           autorelease]];
    }
    return styled;
}

} // namespace zarvil::cocoa
