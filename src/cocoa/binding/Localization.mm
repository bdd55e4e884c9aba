#import "cocoa/binding/Localization.h"

#import "cocoa/binding/Fitting.h"
#import "cocoa/support/Convert.h"

#include "platform/StringTable.h"

namespace zarvil::cocoa {

namespace {

NSString* localized(NSString* text, const StringTable& strings) {
    return [text length] == 0 ? text : toCocoa(strings.localizedString(fromCocoa(text)));
}

void localizeText(NSView* view, const StringTable& strings) {
    if ([view toolTip])
        [view setToolTip:localized([view toolTip], strings)];
    if ([view isKindOfClass:[NSButton class]]) {
        NSButton* button = static_cast<NSButton*>(view);
        [button setTitle:localized([button title], strings)];
        fitText(button, [button title], [button font]);
    } else if ([view isKindOfClass:[NSTextField class]]) {
        NSTextField* field = static_cast<NSTextField*>(view);
        [field setStringValue:localized([field stringValue], strings)];
        if (![field isEditable])
            fitText(field, [field stringValue], [field font]);
        NSTextFieldCell* cell = [field cell];
        if ([cell placeholderString])
            [cell setPlaceholderString:localized([cell placeholderString], strings)];
    } else if ([view isKindOfClass:[NSBox class]]) {
        NSBox* box = static_cast<NSBox*>(view);
        [box setTitle:localized([box title], strings)];
    }
}

} // namespace

void localizeTexts(NSView* view, const StringTable& strings) {
    localizeText(view, strings);
    if ([view isKindOfClass:[NSTabView class]]) {
        NSTabView* tabs = static_cast<NSTabView*>(view);
        for (NSInteger index = 0; index < [tabs numberOfTabViewItems]; ++index) {
            NSTabViewItem* page = [tabs tabViewItemAtIndex:index];
            [page setLabel:localized([page label], strings)];
            localizeTexts([page view], strings);
        }
        return;
    }
    NSEnumerator* subviews = [[view subviews] objectEnumerator];
    while (NSView* subview = [subviews nextObject])
        localizeTexts(subview, strings);
}

} // namespace zarvil::cocoa
