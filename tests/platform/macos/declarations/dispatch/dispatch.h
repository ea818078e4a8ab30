#pragma once

#import <objc/NSObject.h>

@interface OS_dispatch_object : NSObject
@end
@interface OS_dispatch_queue : OS_dispatch_object
@end
@interface OS_dispatch_group : OS_dispatch_object
@end
@interface OS_dispatch_queue_attr : OS_dispatch_object
@end

typedef OS_dispatch_queue* dispatch_queue_t;
typedef OS_dispatch_group* dispatch_group_t;
typedef OS_dispatch_queue_attr* dispatch_queue_attr_t;
typedef void (^dispatch_block_t)(void);
typedef uint64_t dispatch_time_t;
enum dispatch_qos_class_t : unsigned int {
    QOS_CLASS_USER_INITIATED = 0x19,
    QOS_CLASS_UTILITY = 0x11,
};

#define DISPATCH_TIME_NOW (0ULL)
#define DISPATCH_TIME_FOREVER (~0ULL)
#define DISPATCH_QUEUE_SERIAL (static_cast<dispatch_queue_attr_t>(nullptr))

extern "C" {
dispatch_queue_t dispatch_get_main_queue(void);
dispatch_queue_t dispatch_get_global_queue(intptr_t identifier, uintptr_t flags);
dispatch_queue_attr_t dispatch_queue_attr_make_with_qos_class(
    dispatch_queue_attr_t attributes, dispatch_qos_class_t qualityOfService, int relativePriority);
__attribute__((ns_returns_retained)) dispatch_queue_t dispatch_queue_create(
    const char* label, dispatch_queue_attr_t attributes);
__attribute__((ns_returns_retained)) dispatch_group_t dispatch_group_create(void);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_sync(dispatch_queue_t queue, __attribute__((noescape)) dispatch_block_t block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
void dispatch_group_async(dispatch_group_t group, dispatch_queue_t queue, dispatch_block_t block);
long dispatch_group_wait(dispatch_group_t group, dispatch_time_t timeout);
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t nanoseconds);
}
