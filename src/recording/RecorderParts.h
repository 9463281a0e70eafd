#pragma once

#include "recording/Recorder.h"

// The recorder's parts, for tests and benchmarks that drive them by hand (a heartbeat ticked
// at the test's own times, a task that never answers, a queue filled in advance). The
// program itself goes through Recorder's operations.
struct RecorderParts {
    static clsRecordingStatus& Status(Recorder& r) { return r.m_status; }
    static ConversionQueue& Conversion(Recorder& r) { return r.m_conversion; }
    static RecordingTaskLink& Link(Recorder& r) { return r.m_link; }
    static RecordingControl& Control(Recorder& r) { return r.m_control; }
    static Heartbeat& HeartbeatTimer(Recorder& r) { return r.m_heartbeat; }
    static const StatusBarPlus& StatusBar(Recorder& r) { return r.m_statusBar; }
    static KeepAwake& KeepAwakeControl(Recorder& r) { return r.m_keepAwake; }
    static MissedRecordings& Missed(Recorder& r) { return r.m_missed; }
};
