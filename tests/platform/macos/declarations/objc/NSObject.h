#pragma once

#include <stddef.h>
#include <stdint.h>

typedef bool BOOL;
#define YES true
#define NO false
#define nil nullptr

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double NSTimeInterval;
typedef struct objc_selector* SEL;
typedef struct objc_method* Method;
typedef void (*IMP)(void);

@class NSString;

@protocol NSObject
- (BOOL)isKindOfClass:(Class)kind;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
- (instancetype)init;
+ (Class)class;
@property (readonly, copy) NSString* description;
@end
