#pragma once

#import <Foundation/Foundation.h>

@interface UTType : NSObject
@end

extern "C" UTType* const UTTypeApplicationBundle;
