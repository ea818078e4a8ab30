#pragma once

#import <Foundation/Foundation.h>

enum SMAppServiceStatus : NSInteger { SMAppServiceStatusEnabled = 1 };

@interface SMAppService : NSObject
@property (class, readonly) SMAppService* mainAppService;
@property (readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end
