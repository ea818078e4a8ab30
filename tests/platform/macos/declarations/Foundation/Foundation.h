#pragma once

#import <CoreFoundation/CoreFoundation.h>
#import <CoreGraphics/CoreGraphics.h>
#import <dispatch/dispatch.h>
#import <objc/NSObject.h>

typedef unsigned short unichar;
typedef uint32_t OSType;
typedef uint32_t FourCharCode;
typedef uint32_t AEEventClass;
typedef uint32_t AEEventID;
typedef uint32_t AEKeyword;
typedef int16_t AEReturnID;
typedef int32_t AETransactionID;
typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;
typedef NSString* NSNotificationName;
typedef NSString* NSRunLoopMode;

static inline NSPoint NSMakePoint(CGFloat x, CGFloat y)
{
    return CGPointMake(x, y);
}

struct NSFastEnumerationState
{
    unsigned long state;
    id __unsafe_unretained* itemsPtr;
    unsigned long* mutationsPtr;
    unsigned long extra[5];
};

typedef struct _NSRange
{
    NSUInteger location;
    NSUInteger length;
} NSRange;
static inline NSRange NSMakeRange(NSUInteger location, NSUInteger length)
{
    return {location, length};
}

@protocol NSCopying
@end

@interface NSString : NSObject <NSCopying>
+ (instancetype)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length;
+ (instancetype)stringWithUTF8String:(const char*)text;
@property (readonly) NSUInteger length;
- (BOOL)isEqualToString:(NSString*)other;
- (void)getCharacters:(unichar*)buffer range:(NSRange)range;
@end

@interface NSConstantString : NSString
@end

@interface NSData : NSObject
+ (instancetype)dataWithBytes:(const void*)bytes length:(NSUInteger)length;
@property (readonly) const void* bytes;
@property (readonly) NSUInteger length;
@end

@interface NSNumber : NSObject <NSCopying>
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithDouble:(double)value;
+ (NSNumber*)numberWithInt:(int)value;
@property (readonly) BOOL boolValue;
@property (readonly) double doubleValue;
@property (readonly) long long longLongValue;
@end

@interface NSArray<__covariant ObjectType> : NSObject
+ (instancetype)arrayWithObjects:(const ObjectType[])objects count:(NSUInteger)count;
+ (instancetype)array;
@property (readonly) NSUInteger count;
@property (readonly) ObjectType firstObject;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)index;
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained[])buffer
                                    count:(NSUInteger)length;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
- (void)addObject:(ObjectType)object;
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject
+ (instancetype)dictionaryWithObjects:(const ObjectType[])objects forKeys:(const KeyType[])keys count:(NSUInteger)count;
- (ObjectType)objectForKeyedSubscript:(KeyType)key;
@end

@interface NSMutableDictionary<KeyType, ObjectType> : NSDictionary <KeyType, ObjectType>
+ (instancetype)dictionary;
- (void)setObject:(ObjectType)object forKeyedSubscript:(KeyType)key;
@end

@interface NSError : NSObject
@property (readonly, copy) NSString* localizedDescription;
@end

@interface NSURL : NSObject <NSCopying>
+ (instancetype)URLWithString:(NSString*)text;
+ (NSURL*)fileURLWithPath:(NSString*)path;
@property (readonly, copy) NSString* path;
@end

@interface NSBundle : NSObject
@property (class, readonly) NSBundle* mainBundle;
+ (instancetype)bundleWithPath:(NSString*)path;
- (id)objectForInfoDictionaryKey:(NSString*)key;
@property (readonly, copy) NSString* bundlePath;
@property (readonly, copy) NSString* bundleIdentifier;
@property (readonly, copy) NSDictionary<NSString*, id>* infoDictionary;
@end

typedef uint64_t NSActivityOptions;
enum : NSActivityOptions { NSActivityUserInitiatedAllowingIdleSystemSleep = 0xEFFFFF };

@interface NSProcessInfo : NSObject
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason;
- (void)endActivity:(id<NSObject>)activity;
@property (class, readonly) NSProcessInfo* processInfo;
@property (readonly, copy) NSString* processName;
@property (readonly, copy) NSArray<NSString*>* arguments;
@property (readonly) NSTimeInterval systemUptime;
@end

enum NSSearchPathDirectory : NSUInteger {
    NSDesktopDirectory = 12,
    NSApplicationSupportDirectory = 14,
};
typedef NSUInteger NSSearchPathDomainMask;
enum : NSUInteger { NSUserDomainMask = 1 };

@interface NSFileManager : NSObject
@property (class, readonly) NSFileManager* defaultManager;
- (BOOL)fileExistsAtPath:(NSString*)path;
- (NSArray<NSString*>*)contentsOfDirectoryAtPath:(NSString*)path error:(NSError**)error;
- (NSArray<NSURL*>*)URLsForDirectory:(NSSearchPathDirectory)directory inDomains:(NSSearchPathDomainMask)domains;
@end

extern "C" NSString* NSHomeDirectory(void);
extern "C" NSString* NSTemporaryDirectory(void);

@interface NSThread : NSObject
@property (class, readonly) BOOL isMainThread;
@end

@interface NSTimer : NSObject
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval repeats:(BOOL)repeats block:(void (^)(NSTimer* timer))block;
- (void)invalidate;
@end

extern "C" const NSRunLoopMode NSRunLoopCommonModes;

@interface NSRunLoop : NSObject
@property (class, readonly) NSRunLoop* mainRunLoop;
- (void)addTimer:(NSTimer*)timer forMode:(NSRunLoopMode)mode;
@end

@interface NSOperationQueue : NSObject
@property (class, readonly) NSOperationQueue* mainQueue;
@end

@interface NSNotification : NSObject
@property (readonly, copy) NSNotificationName name;
@property (readonly) id object;
@property (readonly, copy) NSDictionary* userInfo;
@end

@interface NSNotificationCenter : NSObject
@property (class, readonly) NSNotificationCenter* defaultCenter;
- (id<NSObject>)addObserverForName:(NSNotificationName)name
                            object:(id)object
                             queue:(NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block;
- (void)removeObserver:(id)observer;
@end

@interface NSDistributedNotificationCenter : NSNotificationCenter
@property (class, readonly) NSDistributedNotificationCenter* defaultCenter;
- (void)postNotificationName:(NSNotificationName)name
                      object:(NSString*)object
                    userInfo:(NSDictionary*)userInfo
          deliverImmediately:(BOOL)deliverImmediately;
@end

@interface NSUserDefaults : NSObject
@property (class, readonly) NSUserDefaults* standardUserDefaults;
- (id)objectForKey:(NSString*)key;
- (void)setObject:(id)value forKey:(NSString*)key;
- (void)removeObjectForKey:(NSString*)key;
@end

@interface NSFileHandle : NSObject
- (NSData*)readDataToEndOfFileAndReturnError:(NSError**)error;
@property (class, readonly) NSFileHandle* fileHandleWithNullDevice;
@end

@interface NSPipe : NSObject
+ (NSPipe*)pipe;
@property (readonly) NSFileHandle* fileHandleForReading;
@end

@interface NSTask : NSObject
@property (copy) NSURL* executableURL;
@property (copy) NSArray<NSString*>* arguments;
@property (strong) id standardOutput;
@property (strong) id standardError;
- (BOOL)launchAndReturnError:(NSError**)error;
- (void)waitUntilExit;
@end

typedef NSUInteger NSAppleEventSendOptions;
enum : NSUInteger { NSAppleEventSendNoReply = 1 };

@interface NSAppleEventDescriptor : NSObject
+ (NSAppleEventDescriptor*)descriptorWithBundleIdentifier:(NSString*)identifier;
+ (NSAppleEventDescriptor*)appleEventWithEventClass:(AEEventClass)eventClass
                                            eventID:(AEEventID)eventId
                                   targetDescriptor:(NSAppleEventDescriptor*)target
                                           returnID:(AEReturnID)returnId
                                      transactionID:(AETransactionID)transactionId;
- (NSAppleEventDescriptor*)sendEventWithOptions:(NSAppleEventSendOptions)options
                                        timeout:(NSTimeInterval)timeout
                                          error:(NSError**)error;
- (NSAppleEventDescriptor*)paramDescriptorForKeyword:(AEKeyword)keyword;
@property (readonly) AEEventID eventID;
@property (readonly) OSType enumCodeValue;
@property (readonly, copy) NSString* stringValue;
@end

@interface NSAppleEventManager : NSObject
+ (NSAppleEventManager*)sharedAppleEventManager;
@property (readonly) NSAppleEventDescriptor* currentAppleEvent;
- (void)setEventHandler:(id)handler
            andSelector:(SEL)selector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)eventId;
- (void)removeEventHandlerForEventClass:(AEEventClass)eventClass andEventID:(AEEventID)eventId;
@end

@interface NSAppleScript : NSObject
- (instancetype)initWithSource:(NSString*)source;
- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary<NSString*, id>**)error;
@end
