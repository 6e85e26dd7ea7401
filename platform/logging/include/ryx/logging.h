/*
 * The sink of the logging library, for C and C++ callers.
 *
 * Every message written through a ryx::logging::Logger goes to the sink set
 * here, or to stderr as one line when no sink is set. The sink receives the
 * logger's name (for example "ryx.object"), the level's value (for example 16)
 * and the formatted message, all borrowed for the duration of the call only,
 * together with the context pointer given to RyxLoggingSetSink.
 */
#ifndef RYX_LOGGING_H
#define RYX_LOGGING_H

#if defined(__GNUC__)
#define RYX_LOGGING_API __attribute__((visibility("default")))
#else
#define RYX_LOGGING_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef void (*RyxLoggingSink)(char const* logger, int level, char const* message, void* context);

/*
 * Sends every later message to `sink`, called with `context`; a null `sink`
 * restores the output to stderr.
 *
 * Safe while other threads log: when RyxLoggingSetSink returns, the previous
 * sink has finished every call in progress and is never called again, so its
 * context may be freed. Sinks may run on several threads at once. A sink must
 * not call RyxLoggingSetSink; a message logged from inside a sink goes to
 * stderr.
 */
RYX_LOGGING_API void RyxLoggingSetSink(RyxLoggingSink sink, void* context);

#ifdef __cplusplus
}
#endif

#endif /* RYX_LOGGING_H */
