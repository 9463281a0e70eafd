#include "recording/RecordingEndPlan.h"

#include "common/TextHelpers.h"
#include "recording/clsRecordingStatus.h"
#include "store/ProgramRow.h"

namespace {

RecordingEndPlan::File FileOutcome(const clsRecordingStatus& status, float sizeMbytes)
{
    using File = RecordingEndPlan::File;
    if (status.Failed)
        return File::Discard;
    if (sizeMbytes < kLeastRecordingMbytes)
        return File::NoData;
    return status.ConvertToMP3 ? File::Convert : File::List;
}

RecordingEndPlan::Player PlayerOutcome(const clsRecordingStatus& status, bool hasDisplay)
{
    using Player = RecordingEndPlan::Player;
    const QString playerClose = status.StreamingPlayerClose.trimmed();
    if (!hasDisplay && playerClose != StreamingPlayerClose::DoNotClose)
        return Player::NoDisplayToCloseOn;
    if (playerClose.isEmpty())
        return Player::CloseNewWindows;
    if (playerClose != StreamingPlayerClose::DoNotClose)
        return Player::CloseByTitle;
    return Player::Leave;
}

} // namespace

RecordingEndPlan PlanRecordingEnd(const clsRecordingStatus& status, float sizeMbytes,
                                  bool hasDisplay)
{
    RecordingEndPlan plan;
    plan.file = FileOutcome(status, sizeMbytes);
    // Manual recordings have no after-actions but the launch, which they never set.
    if (status.ProgramId == -1)
        return plan;
    plan.cancelProgram = true;
    if (!status.InternetLink.trimmed().isEmpty()) {
        plan.player = PlayerOutcome(status, hasDisplay);
        // A line opened for the stream is not left open.
        plan.hangUp = status.HangupInternetConnection;
    }
    // Intended: the test is on the before-profile, so an after-profile alone never applies;
    // an empty after-profile names no file and changes nothing.
    plan.applyMixerProfileAfter = !Text::Trim(status.MixerProfileBefore).isEmpty();
    return plan;
}
