#pragma once

#import <objc/NSObject.h>

extern "C" {
Method class_getInstanceMethod(Class cls, SEL name);
void method_exchangeImplementations(Method first, Method second);
}
