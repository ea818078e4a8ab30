#pragma once

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

#include <sys/types.h>

@class NSEvent, NSWindow, UTType;

@interface NSColor : NSObject
@property (class, readonly) NSColor* clearColor;
@end

@interface NSResponder : NSObject
- (void)noResponderFor:(SEL)selector;
@end

@interface NSScreen : NSObject
@property (class, readonly, copy) NSArray<NSScreen*>* screens;
@property (class, readonly) NSScreen* mainScreen;
@property (readonly) NSRect frame;
@property (readonly) NSRect visibleFrame;
@end

typedef NSUInteger NSWindowStyleMask;
typedef NSUInteger NSWindowCollectionBehavior;
typedef NSInteger NSWindowLevel;
enum : NSWindowStyleMask { NSWindowStyleMaskNonactivatingPanel = 128 };
enum : NSWindowCollectionBehavior {
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1,
    NSWindowCollectionBehaviorFullScreenAuxiliary = 256,
};

@interface NSView : NSResponder
@property (readonly, assign) NSWindow* window;
@end

@interface NSWindow : NSResponder
@property (readonly, getter=isVisible) BOOL visible;
@property (readonly, getter=isMiniaturized) BOOL miniaturized;
@property CGFloat alphaValue;
@property NSWindowLevel level;
@property NSWindowStyleMask styleMask;
@property NSWindowCollectionBehavior collectionBehavior;
@property (copy) NSColor* backgroundColor;
@property (getter=isOpaque) BOOL opaque;
@property BOOL hasShadow;
@property BOOL hidesOnDeactivate;
- (void)makeKeyAndOrderFront:(id)sender;
- (void)orderFrontRegardless;
- (void)orderOut:(id)sender;
- (void)miniaturize:(id)sender;
- (void)performMiniaturize:(id)sender;
- (void)deminiaturize:(id)sender;
- (instancetype)animator;
@end

@interface NSPanel : NSWindow
@property (getter=isFloatingPanel) BOOL floatingPanel;
@end

typedef NSInteger NSModalResponse;
enum : NSModalResponse { NSModalResponseOK = 1 };

@interface NSSavePanel : NSPanel
@property (readonly, copy) NSURL* URL;
@property (copy) NSURL* directoryURL;
@property (copy) NSString* title;
@property (copy) NSString* message;
@property (copy) NSArray<UTType*>* allowedContentTypes;
- (NSModalResponse)runModal;
- (void)cancel:(id)sender;
@end

@interface NSOpenPanel : NSSavePanel
+ (NSOpenPanel*)openPanel;
@property BOOL canChooseFiles;
@property BOOL canChooseDirectories;
@property BOOL allowsMultipleSelection;
@end

@interface NSAnimationContext : NSObject
+ (void)runAnimationGroup:(__attribute__((noescape))void (^)(NSAnimationContext* context))changes;
@property NSTimeInterval duration;
@end

enum NSApplicationActivationPolicy : NSInteger {
    NSApplicationActivationPolicyRegular = 0,
    NSApplicationActivationPolicyAccessory = 1,
    NSApplicationActivationPolicyProhibited = 2,
};
typedef NSUInteger NSApplicationActivationOptions;
enum : NSUInteger { NSApplicationActivateAllWindows = 1 };

@interface NSApplication : NSResponder
@property (class, readonly) NSApplication* sharedApplication;
@property (readonly, getter=isActive) BOOL active;
@property (readonly) NSApplicationActivationPolicy activationPolicy;
@property (readonly, weak) NSWindow* keyWindow;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activateIgnoringOtherApps:(BOOL)ignore;
@end

extern "C" {
extern const NSNotificationName NSApplicationDidBecomeActiveNotification;
extern const NSNotificationName NSApplicationDidFinishLaunchingNotification;
extern const NSNotificationName NSApplicationWillFinishLaunchingNotification;
extern const NSNotificationName NSApplicationWillTerminateNotification;
extern const NSNotificationName NSWindowDidBecomeKeyNotification;
extern const NSNotificationName NSWindowDidResignKeyNotification;
extern const NSNotificationName NSWorkspaceDidActivateApplicationNotification;
extern NSString* const NSWorkspaceApplicationKey;
}

typedef unsigned long long NSEventMask;
typedef NSUInteger NSEventModifierFlags;
enum NSEventType : NSUInteger {
    NSEventTypeKeyDown = 10,
    NSEventTypeKeyUp = 11,
    NSEventTypeFlagsChanged = 12,
    NSEventTypeSystemDefined = 14,
};
enum NSEventSubtype : short {};
enum : NSEventMask { NSEventMaskKeyDown = 1 << 10 };
@class NSGraphicsContext;

@interface NSEvent : NSObject
+ (NSEvent*)otherEventWithType:(NSEventType)type
                      location:(NSPoint)location
                 modifierFlags:(NSEventModifierFlags)flags
                     timestamp:(NSTimeInterval)time
                  windowNumber:(NSInteger)windowNumber
                       context:(NSGraphicsContext*)unusedPassNil
                       subtype:(short)subtype
                         data1:(NSInteger)data1
                         data2:(NSInteger)data2;
+ (NSEvent*)eventWithCGEvent:(CGEventRef)event;
+ (id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(void (^)(NSEvent* event))handler;
+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(NSEvent* (^)(NSEvent* event))handler;
+ (void)removeMonitor:(id)monitor;
@property (class, readonly) NSPoint mouseLocation;
@property (readonly) NSEventType type;
@property (readonly) NSEventModifierFlags modifierFlags;
@property (readonly) unsigned short keyCode;
@property (readonly, copy) NSString* charactersIgnoringModifiers;
@property (readonly, getter=isARepeat) BOOL ARepeat;
@property (readonly) NSEventSubtype subtype;
@property (readonly) NSInteger data1;
@property (readonly) CGEventRef CGEvent;
@end

@interface NSRunningApplication : NSObject
@property (class, readonly) NSRunningApplication* currentApplication;
+ (instancetype)runningApplicationWithProcessIdentifier:(pid_t)process;
@property (readonly) pid_t processIdentifier;
@property (readonly, copy) NSString* bundleIdentifier;
@property (readonly, copy) NSString* localizedName;
@property (readonly, copy) NSURL* executableURL;
@property (readonly) NSApplicationActivationPolicy activationPolicy;
@property (readonly, getter=isHidden) BOOL hidden;
@property (readonly, getter=isTerminated) BOOL terminated;
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;
- (BOOL)forceTerminate;
@end

@interface NSWorkspaceOpenConfiguration : NSObject
+ (instancetype)configuration;
@property BOOL activates;
@end

@interface NSWorkspace : NSObject
@property (class, readonly) NSWorkspace* sharedWorkspace;
@property (readonly) NSNotificationCenter* notificationCenter;
@property (readonly) NSRunningApplication* frontmostApplication;
@property (readonly, copy) NSArray<NSRunningApplication*>* runningApplications;
- (NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)identifier;
- (BOOL)openURL:(NSURL*)url;
- (void)openApplicationAtURL:(NSURL*)url
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^)(NSRunningApplication* application, NSError* error))handler;
@end

typedef NSString* NSPasteboardType;
extern "C" const NSPasteboardType NSPasteboardTypeString;

@interface NSPasteboard : NSObject
@property (class, readonly) NSPasteboard* generalPasteboard;
@property (readonly) NSInteger changeCount;
- (NSInteger)declareTypes:(NSArray<NSPasteboardType>*)types owner:(id)owner;
- (NSString*)stringForType:(NSPasteboardType)type;
- (BOOL)setString:(NSString*)text forType:(NSPasteboardType)type;
- (NSPasteboardType)availableTypeFromArray:(NSArray<NSPasteboardType>*)types;
@end

enum NSHapticFeedbackPattern : NSInteger { NSHapticFeedbackPatternAlignment = 1 };
enum NSHapticFeedbackPerformanceTime : NSUInteger { NSHapticFeedbackPerformanceTimeNow = 1 };

@protocol NSHapticFeedbackPerformer
- (void)performFeedbackPattern:(NSHapticFeedbackPattern)pattern
               performanceTime:(NSHapticFeedbackPerformanceTime)performanceTime;
@end

@interface NSHapticFeedbackManager : NSObject
@property (class, readonly) id<NSHapticFeedbackPerformer> defaultPerformer;
@end
