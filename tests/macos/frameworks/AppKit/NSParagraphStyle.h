#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

// The numbers of right and centre differ between kinds of Mac; only the names are used.
typedef NS_ENUM(NSInteger, NSTextAlignment) {
    NSTextAlignmentLeft = 0,
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
};

extern "C" {
extern NSAttributedStringKey const NSFontAttributeName;            // NSFont
extern NSAttributedStringKey const NSForegroundColorAttributeName; // NSColor
extern NSAttributedStringKey const NSParagraphStyleAttributeName;  // NSParagraphStyle
}

@interface NSParagraphStyle : NSObject <NSCopying>
@property(readonly) NSTextAlignment alignment;
@property(readonly) CGFloat lineSpacing;
@property(readonly) CGFloat maximumLineHeight;
@end

@interface NSMutableParagraphStyle : NSParagraphStyle
@property NSTextAlignment alignment;
@property CGFloat lineSpacing;
@property CGFloat maximumLineHeight;
@end

NS_ASSUME_NONNULL_END
