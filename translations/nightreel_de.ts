<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AppDatabase</name>
    <message>
        <source>Path/File access error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compact Database failed.  The following error occurred: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CodecCatalogue</name>
    <message>
        <source>Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG Layer-3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Bit, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> kBit/s, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Hz, </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Nightreel 2000 records sound at the times of the programs you list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the row the recordings list would show for &lt;file&gt;, then end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record without a window or display, controlled by nightreel-ctl.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1: start hidden in the tray. 2: start even if Nightreel 2000 is already running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try &quot;nightreel --help&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlService</name>
    <message>
        <source>The control interface is not offered: no session bus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The control interface is not offered:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording failed; see the event log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program was not saved; see the event log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A manual recording lasts from 1 second to 23:59:59.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A recording is already in progress.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a description.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording did not start; see the event log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is being recorded or converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no recording %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be deleted; see the event log.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConversionQueue</name>
    <message>
        <source>Recording kept in PCM format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following recording was being made when Nightreel 2000 ended; it was not converted to MP3 and is kept as a PCM wave file.<byte value="xd"/>
File: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was not enough disk space to convert it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The MP3 conversions were stopped before it was converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its MP3 conversion was stopped part-way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Converting to MP3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Code: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
Description: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its MP3 conversion failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
The recordings waiting for conversion are kept and converted at the next start of Nightreel 2000.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path/File access error: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following recording was not converted to MP3 and is kept as a PCM wave file: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
File: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConversionQueueFile</name>
    <message>
        <source>Path/File access error: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DiskForecast</name>
    <message>
        <source>  **TRUNCATED**</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EncoderLibrary</name>
    <message>
        <source>%1 lacks an entry point</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Module: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
Error: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 Runtime Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderBrowser</name>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FormatChooser</name>
    <message>
        <source>Select Recording Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Attributes:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifications</name>
    <message>
        <source>there is no session bus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Event Log</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GridColumns</name>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size (Mbytes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HeadlessStart</name>
    <message>
        <source>Asked to end: the recording in progress is saved first; conversions to MP3 go on at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 is running without a window.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Heartbeat</name>
    <message>
        <source>Invalid Launch Application command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command to launch an application is invalid.  Check the file paths and that the applications exists.<byte value="xd"/>
Command= </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InstanceLock</name>
    <message>
        <source>Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 already running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 is already loaded. To restore window, double-click on system tray Nightreel 2000 icon. If the icon is not present, end the application with the system monitor or by logging out and in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 is already running.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeepAwake</name>
    <message>
        <source>Recording </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting a recording to MP3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No wake alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer&apos;s clock has no wake alarm that Nightreel 2000 may set (its helper nightreel-wake is not installed or not allowed), so a computer that sleeps will not wake by itself for a recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer going to sleep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer is going to sleep and will not wake by itself for the following recording:<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
Start: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LaunchCommands</name>
    <message>
        <source>Invalid Launch Application command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command to launch an application is invalid.  Check the file paths and that the application exists.<byte value="xd"/>
Command= </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LaunchMixer</name>
    <message>
        <source>Mixer Control Not Found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoggedMessageBox</name>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
Answered without a window: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainFormController</name>
    <message>
        <source>Recording Folder Needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 requires a valid recording folder for recording to occur.  Select Recording folder?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not exit while recording. Please stop the recording or wait for it complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting to MP3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not exit while converting to MP3. Please stop the conversion or wait for it complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have scheduled recordings. No recording will occur if you exit. Are you sure you want to exit?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Original Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All scheduled programs, recording list, and error log will be cleared. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaReaders</name>
    <message>
        <source>MPEG Layer 3  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> kBits/s, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Hz, </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MissedRecordings</name>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the recorder was not running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap in a recording: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer was asleep for %1 during the recording (from %2 to %3); the file goes on after the gap.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, due </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program ID: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording started late: %1, the first %2 missed (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missed recording: %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missed recordings: %1 recordings due from %2 to %3 were not made (%4)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MixerProfiles</name>
    <message>
        <source>Error activating mixer profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error number = </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path/File access error: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid profile name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mixer profile name cannot contain any of the following characters:<byte value="xd"/>
\ / : * ? &quot; &lt; &gt; | </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mixer profile name cannot be blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to overwrite existing profile with same name?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error saving mixer profile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModeDisplay</name>
    <message>
        <source>Continue Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Continue Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;use Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop MP3 Conversion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Current Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - Suspended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 is in suspended mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - Recording (PAUSED)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECORDING PAUSED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - Converting to MP3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - Playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 is playing a recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 is currently stopped</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayPanelForm</name>
    <message>
        <source>Play Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayPanels</name>
    <message>
        <source>Nightreel 2000 playing - </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayStepButtons</name>
    <message>
        <source>Rewind </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast Forward </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayTime</name>
    <message>
        <source> min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> sec</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlaybackEngine</name>
    <message>
        <source>The playback elements are not installed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayerChoice</name>
    <message>
        <source>Error Launching default desktop </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> player. Error Code=</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Perhaps there is no desktop application associated with </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent Recording Not Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most recent recording was not found. It may have been deleted, recording media may have been removed, or disk drive letter may have changed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgramEditor</name>
    <message>
        <source> hours </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> min </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Mbytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Kbytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none selected)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none available)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>   **DISABLED** </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgramListCommands</name>
    <message>
        <source>Remove Programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to remove the selected programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to disable the selected program?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to enable the selected program?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgramListGrid</name>
    <message>
        <source>Recorded from %1 to %2 (%3 seconds early and late; the late end gives way to a program that follows)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgramRequest</name>
    <message>
        <source>Invalid value for %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown key: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgramValidator</name>
    <message>
        <source>No days selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At least one day needs to be selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Filename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filename cannot contain any of the following characters:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Filename Prefix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filename prefix cannot contain any of the following characters:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Filename Suffix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filename suffix cannot contain any of the following characters:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program description required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a program description.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid date and time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scheduled date and time must be later than the current time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid stream address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Schedule Conflict</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a scheduling conflict with another program. Please modify the recording time or remove/disable the conflicting program.

Conflicting Program Description: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long Recording Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A recording longer than </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> hours is programmed.  Save this programming? </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QCoreApplication::RecorderNotifications</name>
    <message>
        <source>Recording task not responding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording stopped: disk nearly full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording is silent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP3 conversion failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP3 conversion stopped: disk nearly full</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>Web link not opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no display to open it on: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecorderNotifications</name>
    <message>
        <source>Recording failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free disk space fell below the limit set in Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sound was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task did not start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An earlier recording task could not be ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording was stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sound is coming in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings missed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No desktop notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop shows no notifications: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk space low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Less than %1 Megabytes are free in the recording folder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingControl</name>
    <message>
        <source>Nightreel 2000 %1.%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording saved under a new name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; is already in the recording folder and is kept. The recording &quot;%2&quot; is saved as &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>   (Kept as broadcast)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No response from recording task.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Recording Directory. Select a recording directory in Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note: Converted MP3 recordings require additional storage for the initial PCM wave file recording.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Additional space is also needed for any temporary PCM files that are currently being converted to MP3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording not started due to insufficient disk space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording was not started since there is not enough disk space.  Remove recordings from disk, change the recording directory to a different disk drive, or shorten the recording time. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will stop and convert the recording in progress to MP3.  Are you sure you want to stop recording?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will stop and save the recording in progress.  Are you sure you want to stop recording?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will stop and save the MP3 conversion in progress.  Are you sure you want to stop the MP3 conversion?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will stop and save the MP3 conversion in progress and abort the remaining MP3 conversions in the queue.   Are you sure you want to stop the MP3 conversion?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following recording failed since no recording data was written:<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
<byte value="xd"/>
Try a different recording format or bit rate.  If you are performing a short (under 30 seconds) recording, try extending the time by a few seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Streaming player not closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no display to close it on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 Recording</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingTaskErrors</name>
    <message>
        <source>Error communicating with recording task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scheduler communicates with the recording task via a disk file.  There may have occurred an error during writing or reading the file.  If problem continues, try restarting the software or rebooting system.  If this does not work, try selecting a different recording format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error writing recording file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was unable to advance the I/O buffer while writing recording.  Possible causes may include insufficient system disk space or memory or there may be a problem with the recording format. Try closing unused programs, checking disk space, and restarting the software.  If this does not work try a different recording format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error occurred during recording process.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to obtain audio metrics from the operating system.  If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to allocate memory to store wave format information. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to lock memory that stores wave format information. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to allocate memory to store wave header information. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to lock memory that stores wave header information. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Opening Wave Input File.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error preparing header for recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Creating Wave File.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to create the Wave file.  Check if the recording media is writable and has enough disk space. If this problem occurs again, try a different recording format, recording folder, or disk drive.  If the problem persists, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave fact chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave data chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to obtain the wave information from the system.  Try selecting a different recording format. If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to start wave recording. Check the recording drive disk space, or try selecting a different recording format.  Check the recording drive disk space.  If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to write the subject name info chunk of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task encountered an error while during the recording stop. If this problem occurs again, try selecting a different recording format. If problem persists, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Closing Input Device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task encountered an error closing the sound server input stream. If this problem occurs again, try selecting a different recording format. If problem persists, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Closing Wave File.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave list chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave software info chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave subject name info chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave subject date info chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording task was not able to write the wave wave subject date chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error flushing recording file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another application is recording audio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another application is using the recording device. Stop that application and try again to record using Nightreel.  If the recording device is still locked, a system restart may be required.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No audio driver found for recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If this error persists even after restarting the system, check that the sound server (PulseAudio or PipeWire) is installed and running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out of memory error while opening Wave input file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try recording with different recording format. If the problem persists, try restarting the software or rebooting the system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bad Recording Format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internet stream could not be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stream was tried again and again until the end of the recording.  Check the address with Test in the program&apos;s Source; the station may have moved or be off the air.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error occurred During Recording Process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Try changing recording format, restarting system, or checking hardware or system software configuration.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingTaskLink</name>
    <message>
        <source>Error removing Recording Process.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This may require the system to be restarted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error activating recording task.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timeout occurred.  Try restarting software or rebooting system. If problem persists try a different recording format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timeout occurred.  - Try restarting software or rebooting system. If problem persists try a different recording format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run Time Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected code from recording process.  Code=</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> If problem persists, try a different recording format or restarting the system</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingsList</name>
    <message>
        <source>Recording was not deleted from disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File may be read only, or locked by another process.<byte value="xd"/>
Filename: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Seconds</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingsListCommands</name>
    <message>
        <source>Recording file not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This recording was not found on disk.  The disk file may have deleted or moved.  If this file was on removable media verify that the recording is on the media. It is also possible that the disk drive letters may have been changed by the operating system after system reboot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WAV and MP3 files (*.wav *.mp3 *.WAV *.MP3);;WAV files (*.wav *.WAV);;MP3 files (*.mp3 *.MP3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Selected Recordings From List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected recordings will be removed from the recording list.  The recordings will not be deleted from disk. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Recordings From Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will remove recordings PERMANENTLY from disk. Are you sure you want to delete the selected recordings?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Recordings List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All recordings will be removed from the recording list.  The recordings will not be deleted from disk. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordsetModel</name>
    <message>
        <source>Sound server input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>True</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>False</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Scheduler</name>
    <message>
        <source>Missed recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel 2000 has determined that some of the one-time recordings were not performed since the scheduled recording time is prior to the current date/time. Removed all expired scheduled programs?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SilenceAlarm</name>
    <message>
        <source>no signal at all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> dBFS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
Source: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
Peak level: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording is silent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording has sound again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SourceChooser</name>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound server&apos;s default input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internet stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>http://… or https://…, or a .pls, .m3u or .m3u8 list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ddress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting and listening for a few seconds…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusBarPlus</name>
    <message>
        <source> minutes </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> seconds </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Space Used: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% used, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Megabytes remaining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source><byte value="xd"/>
Remove recordings from disk or change the recording directory to a different disk drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording stopped due to insufficient disk space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Description: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP3 conversion stopped due to insufficient disk space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove recordings from disk or change the default recording directory to a different disk drive.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StreamAddress</name>
    <message>
        <source>Please enter the address of the internet stream.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address of an internet stream must begin with http:// or https://, such as http://radio.example.org/live.mp3, or name a .pls, .m3u or .m3u8 list.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StreamGapLog</name>
    <message>
        <source>Internet stream interrupted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording: %1<byte value="xd"/>
Stream: %2<byte value="xd"/>
The stream was lost at %3 for %4 seconds; the recording went on.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StreamTest</name>
    <message>
        <source>The recording task could not be started to test the stream.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stream could not be played: no answer within %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stream could not be tested.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stream could not be played: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown codec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; station: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StreamingPlayer</name>
    <message>
        <source>Streaming player on Wayland</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On a Wayland session only players that run as X11 programs (XWayland) can be closed: native Wayland windows can&apos;t be.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SysTrayIcon</name>
    <message>
        <source>This desktop has no notification area (system tray) to hide Nightreel 2000 in: the window is minimised to the task bar instead, and a hidden start starts minimised.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimeSlider</name>
    <message>
        <source>Time Control</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewHtmlFile</name>
    <message>
        <source>Path/File access error: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browser Not Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not find associated Browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web Page not Opened</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsAppStatus</name>
    <message>
        <source>Invalid request</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please stop the recording in process prior to suspending.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please stop the MP3 conversion in process prior to suspending.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suspend Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will suspend Nightreel 2000. No recording will take place while suspended. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsError</name>
    <message>
        <source>Errors or warnings are present - Click to view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error occurred - click to view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors occurred - click to view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sound server input found.  Check that PulseAudio or PipeWire is running and that an input is not disabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Recording Folder.  Go to View/Options and select a recording folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Low - no further recording allowed.  Delete recordings from disk or change recording folder. You can also change the limit to stop recording in View/Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Low Warning.  Delete recordings from disk or change recording folder. You can also change the disk warning limit in View/Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Error Log is Full. Go to View/Error Log (or press the View Error Log button below) and remove all event log items. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database is missing. Go to Tools/Advanced/Restore Original Database to create new database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording is silent.  Check that the source is playing and that its mixer levels are up; see the Error Log for the source.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsRecordingFormat</name>
    <message>
        <source>Record in PCM format and convert to MP3; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record MP3 in real-time; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as .MP3 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as .WAV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The temporary PCM file required for conversion exceeds 2 Gigabytes, which is the maximum size supported.  Please shorten the recording time or the recording format frequency.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording exceeds 2 Gigabytes, which is the maximum size supported.  Please shorten the recording time or the recording format frequency.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsSysTrayMgr</name>
    <message>
        <source>Nightreel 2000 - </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STOPPED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SUSPENDED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECORDING PAUSED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLAYING and RECORDING</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECORDING</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLAYING &amp; CONVERTING TO MP3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CONVERTING TO MP3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors or warnings are present.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error occurred, check the error log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors occurred, check the error log</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright © Larkmoor Systems. All rights reserved.
Recording broadcasts may be subject to copyright; make sure you have the right to record what you schedule.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operating system: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kernel: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processor architecture: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program built for: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer name: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt version: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Information</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmAddMixerProfile</name>
    <message>
        <source>Add Mixer Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter mixer profile name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The current mixer settings will be saved to the shown profile when the Save button is pressed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmDiskStatus</name>
    <message>
        <source>Disk Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Date/Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Date/Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mbytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Recording Drive: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Space Used: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Megabytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percent Used: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Capacity: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Space Remaining: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculating Scheduled Recordings. Please Wait.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scheduled Recordings and Remaining Disk Space After Recording</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmElog</name>
    <message>
        <source>Error Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the details of the selected entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove All Error Log Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will clear the error log. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmElogDetails</name>
    <message>
        <source>Error Log Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmEnableDisablePrograms</name>
    <message>
        <source>Enable/Disable Programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All selected programs will be enabled or disabled based on selection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enable Programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disable Programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmErrors</name>
    <message>
        <source>&amp;View Error Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following error/warning conditions are present:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is an unviewed error/warning in the error log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> unviewed errors/warnings in the error log.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmLaunchProgramInfo</name>
    <message>
        <source>Launch Program Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The application launch command after recording can contain any of the following symbols which will be substituted with the appropriate string:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%d - recording file directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%p - full recording file name including path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%e - recording file name extension, not including the dot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%% - the % character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%b - recording file name without the path and extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%f - recording file name without the path</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmLoadList</name>
    <message>
        <source>&amp;Merge into current recordings list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Recordings List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No list exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No recordings list files exist.  Please save a recordings list first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings from the selected saved list will be merged into the current recordings list. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The current recordings list will be replaced with the selected saved list. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Recordings List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected recordings list will be permanently removed. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>RECORDING PAUSED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No notification area</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMainUi</name>
    <message>
        <source>Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hide Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Suspend Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disk Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Errors/Warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error &amp;Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pro&amp;gramming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;nable/Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se&amp;lect All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;cordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Play </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete from Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;tails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Explore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Filename to Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Recordings to List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;File to List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add F&amp;older to List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clea&amp;r List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rec&amp;ording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start Manual Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quick Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;top Current Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;use Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixer Pro&amp;files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Play Most Recent Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Compact Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore Original Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larkmoor Systems &amp;Home Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Nightreel 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Manual Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Most Recent Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Has Occurred! Please check the log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clone Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable/Disable Programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete from Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Recordings to List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nightreel is Currently Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Percent Full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today&apos;s Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmManualRecord</name>
    <message>
        <source>YY&amp;MMDD_hhmmss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DD&amp;MMYY_hhmmss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;MMDDYY_hhmmss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modi&amp;fy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Storage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press OK to begin Recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Mbytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Kbytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Filename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filename cannot contain any of the following characters:
\ / : * ? &quot; &lt; &gt; | </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording already in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The manual recording request will not be processed since recording is already in progress.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program description required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a program description.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid stream address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long Recording Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A recording longer than </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> hours is programmed.  Record? </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMixerProfiles</name>
    <message>
        <source>A&amp;ctivate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixer Profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activate mixer profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound server&apos;s mixer settings will be set according to the selected mixer profile. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove mixer profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected mixer profile will be permanently removed. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMp3RecordingFormatInfo</name>
    <message>
        <source>Selecting MP3 Recording Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To enable MP3 recording, follow the steps below:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1) Click on the </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Select from all recording formats&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2) Select the </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;MPEG Layer-3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> recording format.  If this recording format does not show up on the list, install the MP3 encoder library (package libmp3lame0) and start Nightreel 2000 again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Recording &amp;Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Recording Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Manual Recording Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co&amp;nfirm when recordings longer than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hours are programmed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm &amp;stop of manual recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start &amp;programmed recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds early and end them as many seconds late</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WAV files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ustomize play forward/reverse buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Button %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show actual record time in player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run Nightreel 2000 when the desktop &amp;starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop Startup Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w Splash Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warn when disk has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Megabytes left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop recording when disk has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;emove recordings older than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes only recordings that are in the recordings list, with their CUE sheets, and takes them off the list. Other files in the recording folder are never removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per&amp;form purging daily at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOTE: Purging is done only in the current default recording folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow &amp;joystick activation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;utomatically remove expired programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show elapsed recording time in the desktop task &amp;bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep the computer awake for recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Warn when a recording is silent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show desktop &amp;notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A failed recording, a silent input, a full disk or a failed conversion is also announced on the desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default recording file name format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mixer Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se&amp;lect...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Mixer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings directory does not exist or could not be created</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmPlayPanel</name>
    <message>
        <source>Invalid device id.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device is not open or is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error load media device driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action not available for this device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid filename.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Panel Form Load Error (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prev</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error in Loading Play Panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmPlayPanelMP</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Beginning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playback at a faster or slower rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmProgram</name>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;External App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Internet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ena&amp;bled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fre&amp;quency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One &amp;Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dai&amp;ly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mo&amp;n</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;ue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;hu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Storage: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modif&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Prefix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Suffix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch external program &amp;prior to recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of seconds to launch program p&amp;rior to recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch external program when recording comp&amp;letes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch only if &amp;successful recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch Internet lin&amp;k prior to recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of seconds to launch Internet link prior to recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close streaming player when done recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Let Nightreel attempt to determine the streaming player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter &amp;Window title (or part of) </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do &amp;not close streaming player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hang up dial up connection when done recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activate mixer profile prior to recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activate mixer profile when recording completes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixer profiles can be created in the Tools menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YYMM&amp;DD_hhmmss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;DDMMYY_hhmmss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MM&amp;DDYY_hhmmss</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRecordFormat</name>
    <message>
        <source>Select Recording Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use PCM format </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Standard PCM Format </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Phone Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Radio Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;D Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;hannels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> S&amp;tereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;esolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;8 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;16  bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select from &amp;all recording formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co&amp;nvert to the selected MP3 format after recording in the appropriate PCM format.
(Recommended for slow computers)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve with .MP3 file extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selecting MP3 Recording Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOTE: It is strongly recommended to perform a short test recording if no recording has been made with this format before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select from &amp;all
recording formats</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRecordingDetails</name>
    <message>
        <source>Recording Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Mbytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compression Method:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSaveList</name>
    <message>
        <source>Save Recordings List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter list name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No recordings in current list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid list name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recordings list name cannot contain any of the following characters:<byte value="xd"/>
\ / : * ? &quot; &lt; &gt; | </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recordings list name cannot be blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to overwrite existing recordings list with same name?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSelectExistingRecordDirectory</name>
    <message>
        <source>Select disk drive and folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSelectRecordDirectory</name>
    <message>
        <source>Select Recording Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or select recording directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Directories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Recording Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A valid Recording folder is required.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Reselect directory or cancel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not exist.  Create it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not create folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media may be full or read-only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Reselect drive and directory.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSysTray</name>
    <message>
        <source>&amp;System Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore &amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disk Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop Current Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;uspend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
