<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AppDatabase</name>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad/Datei</translation>
    </message>
    <message>
        <source>Nightreel 2000 Error</source>
        <translation>Nightreel 2000 – Fehler</translation>
    </message>
    <message>
        <source>Compact Database failed.  The following error occurred: </source>
        <translation>Das Komprimieren der Datenbank ist fehlgeschlagen. Folgender Fehler ist aufgetreten: </translation>
    </message>
</context>
<context>
    <name>CodecCatalogue</name>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>MPEG Layer-3</source>
        <translation>MPEG Layer-3</translation>
    </message>
    <message>
        <source> Bit, </source>
        <translation> Bit, </translation>
    </message>
    <message>
        <source> kBit/s, </source>
        <translation> kBit/s, </translation>
    </message>
    <message>
        <source> Hz, </source>
        <translation> Hz, </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Nightreel 2000 records sound at the times of the programs you list.</source>
        <translation>Nightreel 2000 nimmt Ton zu den Zeiten der von Ihnen eingetragenen Sendungen auf.</translation>
    </message>
    <message>
        <source>Print the row the recordings list would show for &lt;file&gt;, then end.</source>
        <translation>Die Zeile ausgeben, die die Aufnahmeliste für &lt;Datei&gt; zeigen würde, dann beenden.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Record without a window or display, controlled by nightreel-ctl.</source>
        <translation>Ohne Fenster und Anzeige aufnehmen, gesteuert über nightreel-ctl.</translation>
    </message>
    <message>
        <source>1: start hidden in the tray. 2: start even if Nightreel 2000 is already running.</source>
        <translation>1: verborgen im Systembereich starten. 2: auch starten, wenn Nightreel 2000 bereits läuft.</translation>
    </message>
    <message>
        <source>Try &quot;nightreel --help&quot;.</source>
        <translation>Versuchen Sie „nightreel --help“.</translation>
    </message>
</context>
<context>
    <name>ControlService</name>
    <message>
        <source>The control interface is not offered: no session bus.</source>
        <translation>Die Steuerschnittstelle wird nicht angeboten: kein Sitzungsbus.</translation>
    </message>
    <message>
        <source>The control interface is not offered:</source>
        <translation>Die Steuerschnittstelle wird nicht angeboten:</translation>
    </message>
    <message>
        <source>The recording failed; see the event log.</source>
        <translation>Die Aufnahme ist fehlgeschlagen; siehe Ereignisprotokoll.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>Es gibt keine Sendung %1.</translation>
    </message>
    <message>
        <source>The program was not saved; see the event log.</source>
        <translation>Die Sendung wurde nicht gespeichert; siehe Ereignisprotokoll.</translation>
    </message>
    <message>
        <source>A manual recording lasts from 1 second to 23:59:59.</source>
        <translation>Eine manuelle Aufnahme dauert zwischen 1 Sekunde und 23:59:59.</translation>
    </message>
    <message>
        <source>A recording is already in progress.</source>
        <translation>Es läuft bereits eine Aufnahme.</translation>
    </message>
    <message>
        <source>Please enter a description.</source>
        <translation>Bitte geben Sie eine Beschreibung ein.</translation>
    </message>
    <message>
        <source>The recording did not start; see the event log.</source>
        <translation>Die Aufnahme wurde nicht gestartet; siehe Ereignisprotokoll.</translation>
    </message>
    <message>
        <source>Nothing is being recorded or converted.</source>
        <translation>Es wird nichts aufgenommen oder umgewandelt.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>Es wird nichts aufgenommen.</translation>
    </message>
    <message>
        <source>There is no recording %1.</source>
        <translation>Es gibt keine Aufnahme %1.</translation>
    </message>
    <message>
        <source>The file could not be deleted; see the event log.</source>
        <translation>Die Datei konnte nicht gelöscht werden; siehe Ereignisprotokoll.</translation>
    </message>
    <message>
        <source>The request failed; see the event log.</source>
        <translation>Die Anfrage ist fehlgeschlagen; siehe Ereignisprotokoll.</translation>
    </message>
</context>
<context>
    <name>ConversionQueue</name>
    <message>
        <source>Recording kept in PCM format</source>
        <translation>Aufnahme im PCM-Format behalten</translation>
    </message>
    <message>
        <source>The following recording was being made when Nightreel 2000 ended; it was not converted to MP3 and is kept as a PCM wave file.<byte value="xd"/>
File: </source>
        <translation>Die folgende Aufnahme lief, als Nightreel 2000 beendet wurde; sie wurde nicht in MP3 umgewandelt und bleibt als PCM-Wave-Datei erhalten.<byte value="xd"/>
Datei: </translation>
    </message>
    <message>
        <source>There was not enough disk space to convert it.</source>
        <translation>Für die Umwandlung war nicht genug Speicherplatz frei.</translation>
    </message>
    <message>
        <source>The MP3 conversions were stopped before it was converted.</source>
        <translation>Die MP3-Umwandlungen wurden angehalten, bevor sie umgewandelt wurde.</translation>
    </message>
    <message>
        <source>Its MP3 conversion was stopped part-way.</source>
        <translation>Ihre MP3-Umwandlung wurde mittendrin angehalten.</translation>
    </message>
    <message>
        <source>Error Converting to MP3</source>
        <translation>Fehler bei der Umwandlung in MP3</translation>
    </message>
    <message>
        <source>Error Code: </source>
        <translation>Fehlercode: </translation>
    </message>
    <message>
        <source><byte value="xd"/>
Description: </source>
        <translation><byte value="xd"/>
Beschreibung: </translation>
    </message>
    <message>
        <source>Its MP3 conversion failed.</source>
        <translation>Ihre MP3-Umwandlung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source><byte value="xd"/>
The recordings waiting for conversion are kept and converted at the next start of Nightreel 2000.</source>
        <translation><byte value="xd"/>
Die Aufnahmen, die auf die Umwandlung warten, bleiben erhalten und werden beim nächsten Start von Nightreel 2000 umgewandelt.</translation>
    </message>
    <message>
        <source>Path/File access error: </source>
        <translation>Fehler beim Zugriff auf Pfad/Datei: </translation>
    </message>
    <message>
        <source>The following recording was not converted to MP3 and is kept as a PCM wave file: </source>
        <translation>Die folgende Aufnahme wurde nicht in MP3 umgewandelt und bleibt als PCM-Wave-Datei erhalten: </translation>
    </message>
    <message>
        <source><byte value="xd"/>
File: </source>
        <translation><byte value="xd"/>
Datei: </translation>
    </message>
</context>
<context>
    <name>ConversionQueueFile</name>
    <message>
        <source>Path/File access error: </source>
        <translation>Fehler beim Zugriff auf Pfad/Datei: </translation>
    </message>
</context>
<context>
    <name>DiskForecast</name>
    <message>
        <source>  **TRUNCATED**</source>
        <translation>  **GEKÜRZT**</translation>
    </message>
</context>
<context>
    <name>EncoderLibrary</name>
    <message>
        <source>%1 lacks an entry point</source>
        <translation>%1 fehlt ein Einsprungpunkt</translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Module: </source>
        <translation>Modul: </translation>
    </message>
    <message>
        <source><byte value="xd"/>
Error: </source>
        <translation><byte value="xd"/>
Fehler: </translation>
    </message>
    <message>
        <source>Nightreel 2000 Runtime Error</source>
        <translation>Nightreel 2000 – Laufzeitfehler</translation>
    </message>
</context>
<context>
    <name>FolderBrowser</name>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>FormatChooser</name>
    <message>
        <source>Select Recording Format</source>
        <translation>Aufnahmeformat auswählen</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Attributes:</source>
        <translation>&amp;Eigenschaften:</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifications</name>
    <message>
        <source>there is no session bus.</source>
        <translation>Es gibt keinen Sitzungsbus.</translation>
    </message>
    <message>
        <source>Open Event Log</source>
        <translation>Ereignisprotokoll öffnen</translation>
    </message>
</context>
<context>
    <name>GridColumns</name>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Endzeit</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Häufigkeit</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Size (Mbytes)</source>
        <translation>Größe (MByte)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
</context>
<context>
    <name>HeadlessStart</name>
    <message>
        <source>Asked to end: the recording in progress is saved first; conversions to MP3 go on at the next start.</source>
        <translation>Aufforderung zum Beenden: Die laufende Aufnahme wird zuerst gespeichert; Umwandlungen in MP3 werden beim nächsten Start fortgesetzt.</translation>
    </message>
    <message>
        <source>Nightreel 2000 is running without a window.</source>
        <translation>Nightreel 2000 läuft ohne Fenster.</translation>
    </message>
</context>
<context>
    <name>Heartbeat</name>
    <message>
        <source>Invalid Launch Application command</source>
        <translation>Ungültiger Befehl zum Starten eines Programms</translation>
    </message>
    <message>
        <source>The command to launch an application is invalid.  Check the file paths and that the applications exists.<byte value="xd"/>
Command= </source>
        <translation>Der Befehl zum Starten eines Programms ist ungültig. Prüfen Sie die Dateipfade und ob die Programme vorhanden sind.<byte value="xd"/>
Befehl= </translation>
    </message>
</context>
<context>
    <name>InputChooser</name>
    <message>
        <source>The sound server&apos;s default input</source>
        <translation>Standardeingang des Soundservers</translation>
    </message>
    <message>
        <source>%1 (not available now)</source>
        <translation>%1 (derzeit nicht verfügbar)</translation>
    </message>
</context>
<context>
    <name>InputLevelMeter</name>
    <message>
        <source>Input level</source>
        <translation>Eingangspegel</translation>
    </message>
</context>
<context>
    <name>InstanceLock</name>
    <message>
        <source>Nightreel 2000</source>
        <translation>Nightreel 2000</translation>
    </message>
    <message>
        <source>Nightreel 2000 already running</source>
        <translation>Nightreel 2000 läuft bereits</translation>
    </message>
    <message>
        <source>Nightreel 2000 is already loaded. To restore window, double-click on system tray Nightreel 2000 icon. If the icon is not present, end the application with the system monitor or by logging out and in again.</source>
        <translation>Nightreel 2000 ist bereits geladen. Um das Fenster wiederherzustellen, doppelklicken Sie auf das Nightreel-2000-Symbol im Systembereich. Fehlt das Symbol, beenden Sie das Programm mit der Systemüberwachung oder melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>Nightreel 2000 is already running.</source>
        <translation>Nightreel 2000 läuft bereits.</translation>
    </message>
</context>
<context>
    <name>KeepAwake</name>
    <message>
        <source>Recording </source>
        <translation>Aufnahme </translation>
    </message>
    <message>
        <source>Converting a recording to MP3</source>
        <translation>Eine Aufnahme wird in MP3 umgewandelt</translation>
    </message>
    <message>
        <source>No wake alarm</source>
        <translation>Kein Weckalarm</translation>
    </message>
    <message>
        <source>The computer&apos;s clock has no wake alarm that Nightreel 2000 may set (its helper nightreel-wake is not installed or not allowed), so a computer that sleeps will not wake by itself for a recording.</source>
        <translation>Die Uhr des Computers hat keinen Weckalarm, den Nightreel 2000 stellen darf (das Hilfsprogramm nightreel-wake ist nicht installiert oder nicht erlaubt). Ein Computer im Ruhezustand wacht daher für eine Aufnahme nicht von selbst auf.</translation>
    </message>
    <message>
        <source>Computer going to sleep</source>
        <translation>Computer geht in den Ruhezustand</translation>
    </message>
    <message>
        <source>The computer is going to sleep and will not wake by itself for the following recording:<byte value="xd"/>
</source>
        <translation>Der Computer geht in den Ruhezustand und wacht für die folgende Aufnahme nicht von selbst auf:<byte value="xd"/>
</translation>
    </message>
    <message>
        <source><byte value="xd"/>
Start: </source>
        <translation><byte value="xd"/>
Beginn: </translation>
    </message>
</context>
<context>
    <name>LaunchCommands</name>
    <message>
        <source>Invalid Launch Application command</source>
        <translation>Ungültiger Befehl zum Starten eines Programms</translation>
    </message>
    <message>
        <source>The command to launch an application is invalid.  Check the file paths and that the application exists.<byte value="xd"/>
Command= </source>
        <translation>Der Befehl zum Starten eines Programms ist ungültig. Prüfen Sie die Dateipfade und ob das Programm vorhanden ist.<byte value="xd"/>
Befehl= </translation>
    </message>
</context>
<context>
    <name>LaunchMixer</name>
    <message>
        <source>Mixer Control Not Found</source>
        <translation>Mixer-Steuerung nicht gefunden</translation>
    </message>
    <message>
        <source>Install the sound server&apos;s volume control or a 3rd party mixer.  To install the volume control, open the desktop&apos;s software manager, search for PulseAudio Volume Control (package pavucontrol), and install it.<byte value="xd"/>
To install a 3rd party mixer, bring up the Options form from the View/Options menu, select the Advanced tab, and press the Modify mixer control button.</source>
        <translation>Installieren Sie die Lautstärkeregelung des Soundservers oder einen anderen Mixer. Um die Lautstärkeregelung zu installieren, öffnen Sie die Softwareverwaltung der Arbeitsumgebung, suchen Sie nach „PulseAudio Volume Control“ (Paket pavucontrol) und installieren Sie es.<byte value="xd"/>
Um einen anderen Mixer einzurichten, öffnen Sie über Ansicht/Einstellungen die Einstellungen, wählen Sie die Registerkarte „Erweitert“ und klicken Sie bei der Mixer-Steuerung auf die Schaltfläche zum Ändern.</translation>
    </message>
</context>
<context>
    <name>LoggedMessageBox</name>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source><byte value="xd"/>
Answered without a window: </source>
        <translation><byte value="xd"/>
Ohne Fenster beantwortet: </translation>
    </message>
</context>
<context>
    <name>MainFormController</name>
    <message>
        <source>Recording Folder Needed</source>
        <translation>Aufnahmeordner benötigt</translation>
    </message>
    <message>
        <source>Nightreel 2000 requires a valid recording folder for recording to occur.  Select Recording folder?</source>
        <translation>Nightreel 2000 benötigt einen gültigen Aufnahmeordner, um aufnehmen zu können. Aufnahmeordner auswählen?</translation>
    </message>
    <message>
        <source>Recording in progress</source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message>
        <source>Can not exit while recording. Please stop the recording or wait for it complete.</source>
        <translation>Während einer Aufnahme kann das Programm nicht beendet werden. Bitte beenden Sie die Aufnahme oder warten Sie, bis sie abgeschlossen ist.</translation>
    </message>
    <message>
        <source>Converting to MP3</source>
        <translation>Umwandlung in MP3</translation>
    </message>
    <message>
        <source>Can not exit while converting to MP3. Please stop the conversion or wait for it complete.</source>
        <translation>Während der Umwandlung in MP3 kann das Programm nicht beendet werden. Bitte brechen Sie die Umwandlung ab oder warten Sie, bis sie abgeschlossen ist.</translation>
    </message>
    <message>
        <source>You have scheduled recordings. No recording will occur if you exit. Are you sure you want to exit?</source>
        <translation>Sie haben Aufnahmen geplant. Wenn Sie das Programm beenden, wird nichts aufgenommen. Möchten Sie wirklich beenden?</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Möchten Sie wirklich beenden?</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Restore Original Database</source>
        <translation>Ursprüngliche Datenbank wiederherstellen</translation>
    </message>
    <message>
        <source>All scheduled programs, recording list, and error log will be cleared. Proceed?</source>
        <translation>Alle geplanten Sendungen, die Aufnahmeliste und das Fehlerprotokoll werden geleert. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>MediaReaders</name>
    <message>
        <source>MPEG Layer 3  </source>
        <translation>MPEG Layer 3  </translation>
    </message>
    <message>
        <source> kBits/s, </source>
        <translation> kBit/s, </translation>
    </message>
    <message>
        <source> Hz, </source>
        <translation> Hz, </translation>
    </message>
</context>
<context>
    <name>MissedRecordings</name>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>the recorder was not running</source>
        <translation>der Rekorder lief nicht</translation>
    </message>
    <message>
        <source>Gap in a recording: </source>
        <translation>Lücke in einer Aufnahme: </translation>
    </message>
    <message>
        <source>The computer was asleep for %1 during the recording (from %2 to %3); the file goes on after the gap.</source>
        <translation>Der Computer war während der Aufnahme %1 lang im Ruhezustand (von %2 bis %3); die Datei geht nach der Lücke weiter.</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>der Computer war im Ruhezustand</translation>
    </message>
    <message>
        <source>, due </source>
        <translation>, fällig </translation>
    </message>
    <message>
        <source>Program ID: </source>
        <translation>Sendungs-ID: </translation>
    </message>
    <message>
        <source>Recording started late: %1, the first %2 missed (%3)</source>
        <translation>Aufnahme verspätet begonnen: %1, die ersten %2 fehlen (%3)</translation>
    </message>
    <message>
        <source>Missed recording: %1 (%2)</source>
        <translation>Verpasste Aufnahme: %1 (%2)</translation>
    </message>
    <message>
        <source>Missed recordings: %1 recordings due from %2 to %3 were not made (%4)</source>
        <translation>Verpasste Aufnahmen: %1 Aufnahmen, fällig von %2 bis %3, wurden nicht gemacht (%4)</translation>
    </message>
</context>
<context>
    <name>MixerProfiles</name>
    <message>
        <source>Error activating mixer profile</source>
        <translation>Fehler beim Aktivieren des Mixerprofils</translation>
    </message>
    <message>
        <source>Error number = </source>
        <translation>Fehlernummer = </translation>
    </message>
    <message>
        <source>Path/File access error: </source>
        <translation>Fehler beim Zugriff auf Pfad/Datei: </translation>
    </message>
    <message>
        <source>Invalid profile name</source>
        <translation>Ungültiger Profilname</translation>
    </message>
    <message>
        <source>The mixer profile name cannot contain any of the following characters:<byte value="xd"/>
\ / : * ? &quot; &lt; &gt; | </source>
        <translation>Der Name des Mixerprofils darf keines der folgenden Zeichen enthalten:<byte value="xd"/>
\ / : * ? &quot; &lt; &gt; | </translation>
    </message>
    <message>
        <source>The mixer profile name cannot be blank</source>
        <translation>Der Name des Mixerprofils darf nicht leer sein</translation>
    </message>
    <message>
        <source>Overwrite profile</source>
        <translation>Profil überschreiben</translation>
    </message>
    <message>
        <source>Are you sure you want to overwrite existing profile with same name?</source>
        <translation>Möchten Sie das vorhandene Profil gleichen Namens wirklich überschreiben?</translation>
    </message>
    <message>
        <source>Error saving mixer profile</source>
        <translation>Fehler beim Speichern des Mixerprofils</translation>
    </message>
</context>
<context>
    <name>ModeDisplay</name>
    <message>
        <source>Continue Recording</source>
        <translation>Aufnahme fortsetzen</translation>
    </message>
    <message>
        <source>&amp;Continue Recording</source>
        <translation>Aufnahme &amp;fortsetzen</translation>
    </message>
    <message>
        <source>Pause Recording</source>
        <translation>Aufnahme unterbrechen</translation>
    </message>
    <message>
        <source>Pa&amp;use Recording</source>
        <translation>Aufnahme &amp;unterbrechen</translation>
    </message>
    <message>
        <source>&amp;Pause Recording</source>
        <translation>Aufnahme &amp;unterbrechen</translation>
    </message>
    <message>
        <source>Stop MP3 Conversion</source>
        <translation>MP3-Umwandlung beenden</translation>
    </message>
    <message>
        <source>Stop Current Recording</source>
        <translation>Laufende Aufnahme beenden</translation>
    </message>
    <message>
        <source>Nightreel 2000</source>
        <translation>Nightreel 2000</translation>
    </message>
    <message>
        <source> - Suspended</source>
        <translation> – Ausgesetzt</translation>
    </message>
    <message>
        <source>Nightreel 2000 is in suspended mode</source>
        <translation>Nightreel 2000 ist ausgesetzt</translation>
    </message>
    <message>
        <source> - Recording (PAUSED)</source>
        <translation> – Aufnahme (UNTERBROCHEN)</translation>
    </message>
    <message>
        <source>RECORDING PAUSED</source>
        <translation>AUFNAHME UNTERBROCHEN</translation>
    </message>
    <message>
        <source> - Recording</source>
        <translation> – Aufnahme</translation>
    </message>
    <message>
        <source> - Converting to MP3</source>
        <translation> – Umwandlung in MP3</translation>
    </message>
    <message>
        <source>Converting: </source>
        <translation>Umwandlung: </translation>
    </message>
    <message>
        <source> - Playing</source>
        <translation> – Wiedergabe</translation>
    </message>
    <message>
        <source>Nightreel 2000 is playing a recording</source>
        <translation>Nightreel 2000 spielt eine Aufnahme ab</translation>
    </message>
    <message>
        <source>Nightreel 2000 is currently stopped</source>
        <translation>Nightreel 2000 ist derzeit angehalten</translation>
    </message>
</context>
<context>
    <name>PlayPanelForm</name>
    <message>
        <source>Play Recording</source>
        <translation>Aufnahme abspielen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>PlayPanels</name>
    <message>
        <source>Nightreel 2000 playing - </source>
        <translation>Nightreel 2000 spielt ab – </translation>
    </message>
</context>
<context>
    <name>PlayStepButtons</name>
    <message>
        <source>Rewind </source>
        <translation>Zurückspulen </translation>
    </message>
    <message>
        <source>Fast Forward </source>
        <translation>Vorspulen </translation>
    </message>
</context>
<context>
    <name>PlayTime</name>
    <message>
        <source> min</source>
        <translation> Min.</translation>
    </message>
    <message>
        <source> sec</source>
        <translation> Sek.</translation>
    </message>
</context>
<context>
    <name>PlaybackEngine</name>
    <message>
        <source>The playback elements are not installed.</source>
        <translation>Die Bausteine für die Wiedergabe sind nicht installiert.</translation>
    </message>
</context>
<context>
    <name>PlayerChoice</name>
    <message>
        <source>Error Launching default desktop </source>
        <translation>Fehler beim Starten des Standard-</translation>
    </message>
    <message>
        <source> player. Error Code=</source>
        <translation>-Players der Arbeitsumgebung. Fehlercode=</translation>
    </message>
    <message>
        <source>
Perhaps there is no desktop application associated with </source>
        <translation>
Vielleicht ist keine Anwendung der Arbeitsumgebung zugeordnet für </translation>
    </message>
    <message>
        <source> files.</source>
        <translation>-Dateien.</translation>
    </message>
    <message>
        <source>Recent Recording Not Found</source>
        <translation>Letzte Aufnahme nicht gefunden</translation>
    </message>
    <message>
        <source>Most recent recording was not found. It may have been deleted, recording media may have been removed, or disk drive letter may have changed.</source>
        <translation>Die letzte Aufnahme wurde nicht gefunden. Sie wurde vielleicht gelöscht, der Datenträger wurde entfernt oder er ist unter einem anderen Pfad eingehängt.</translation>
    </message>
</context>
<context>
    <name>ProgramEditor</name>
    <message>
        <source> hours </source>
        <translation> Std. </translation>
    </message>
    <message>
        <source> min </source>
        <translation> Min. </translation>
    </message>
    <message>
        <source> sec</source>
        <translation> Sek.</translation>
    </message>
    <message>
        <source> Mbytes</source>
        <translation> MByte</translation>
    </message>
    <message>
        <source> Kbytes</source>
        <translation> KByte</translation>
    </message>
    <message>
        <source>(none selected)</source>
        <translation>(keines ausgewählt)</translation>
    </message>
    <message>
        <source>(none available)</source>
        <translation>(keines vorhanden)</translation>
    </message>
    <message>
        <source>   **DISABLED** </source>
        <translation>   **DEAKTIVIERT** </translation>
    </message>
</context>
<context>
    <name>ProgramListCommands</name>
    <message>
        <source>Remove Programs</source>
        <translation>Sendungen entfernen</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the selected programs.</source>
        <translation>Möchten Sie die ausgewählten Sendungen wirklich entfernen?</translation>
    </message>
    <message>
        <source>Are you sure you want to disable the selected program?</source>
        <translation>Möchten Sie die ausgewählte Sendung wirklich deaktivieren?</translation>
    </message>
    <message>
        <source>Are you sure you want to enable the selected program?</source>
        <translation>Möchten Sie die ausgewählte Sendung wirklich aktivieren?</translation>
    </message>
    <message>
        <source>Nightreel 2000</source>
        <translation>Nightreel 2000</translation>
    </message>
</context>
<context>
    <name>ProgramListGrid</name>
    <message>
        <source>Recorded from %1 to %2 (%3 seconds early and late; the late end gives way to a program that follows)</source>
        <translation>Aufgenommen von %1 bis %2 (%3 Sekunden früher und später; das spätere Ende weicht einer folgenden Sendung)</translation>
    </message>
</context>
<context>
    <name>ProgramRequest</name>
    <message>
        <source>Invalid value for %1: %2</source>
        <translation>Ungültiger Wert für %1: %2</translation>
    </message>
    <message>
        <source>Unknown key: </source>
        <translation>Unbekannter Schlüssel: </translation>
    </message>
</context>
<context>
    <name>ProgramValidator</name>
    <message>
        <source>No days selected</source>
        <translation>Keine Tage ausgewählt</translation>
    </message>
    <message>
        <source>At least one day needs to be selected.</source>
        <translation>Mindestens ein Tag muss ausgewählt sein.</translation>
    </message>
    <message>
        <source>Invalid Filename</source>
        <translation>Ungültiger Dateiname</translation>
    </message>
    <message>
        <source>The filename cannot contain any of the following characters:
</source>
        <translation>Der Dateiname darf keines der folgenden Zeichen enthalten:
</translation>
    </message>
    <message>
        <source>Invalid Filename Prefix</source>
        <translation>Ungültiges Dateinamen-Präfix</translation>
    </message>
    <message>
        <source>The filename prefix cannot contain any of the following characters:
</source>
        <translation>Das Dateinamen-Präfix darf keines der folgenden Zeichen enthalten:
</translation>
    </message>
    <message>
        <source>Invalid Filename Suffix</source>
        <translation>Ungültiges Dateinamen-Suffix</translation>
    </message>
    <message>
        <source>The filename suffix cannot contain any of the following characters:
</source>
        <translation>Das Dateinamen-Suffix darf keines der folgenden Zeichen enthalten:
</translation>
    </message>
    <message>
        <source>Program description required</source>
        <translation>Sendungsbeschreibung erforderlich</translation>
    </message>
    <message>
        <source>Please enter a program description.</source>
        <translation>Bitte geben Sie eine Beschreibung der Sendung ein.</translation>
    </message>
    <message>
        <source>Invalid date and time</source>
        <translation>Ungültiges Datum oder ungültige Uhrzeit</translation>
    </message>
    <message>
        <source>The scheduled date and time must be later than the current time.</source>
        <translation>Datum und Uhrzeit der Aufnahme müssen nach der aktuellen Zeit liegen.</translation>
    </message>
    <message>
        <source>Invalid stream address</source>
        <translation>Ungültige Streamadresse</translation>
    </message>
    <message>
        <source>Schedule Conflict</source>
        <translation>Terminüberschneidung</translation>
    </message>
    <message>
        <source>There is a scheduling conflict with another program. Please modify the recording time or remove/disable the conflicting program.

Conflicting Program Description: </source>
        <translation>Die Zeit überschneidet sich mit einer anderen Sendung. Bitte ändern Sie die Aufnahmezeit oder entfernen bzw. deaktivieren Sie die überschneidende Sendung.

Beschreibung der überschneidenden Sendung: </translation>
    </message>
    <message>
        <source>Long Recording Confirmation</source>
        <translation>Lange Aufnahme bestätigen</translation>
    </message>
    <message>
        <source>A recording longer than </source>
        <translation>Es ist eine Aufnahme von mehr als </translation>
    </message>
    <message>
        <source> hours is programmed.  Save this programming? </source>
        <translation> Stunden programmiert. Diese Programmierung speichern? </translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Hilfe zu den Befehlszeilenoptionen anzeigen.</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>Web link not opened</source>
        <translation>Weblink nicht geöffnet</translation>
    </message>
    <message>
        <source>There is no display to open it on: </source>
        <translation>Es gibt keine Anzeige, auf der er geöffnet werden kann: </translation>
    </message>
</context>
<context>
    <name>RecorderNotifications</name>
    <message>
        <source>Recording failed</source>
        <translation>Aufnahme fehlgeschlagen</translation>
    </message>
    <message>
        <source>Free disk space fell below the limit set in Options.</source>
        <translation>Der freie Speicherplatz ist unter die in den Einstellungen festgelegte Grenze gefallen.</translation>
    </message>
    <message>
        <source>No sound was written.</source>
        <translation>Es wurde kein Ton geschrieben.</translation>
    </message>
    <message>
        <source>The recording task did not start.</source>
        <translation>Der Aufnahmeprozess ist nicht gestartet.</translation>
    </message>
    <message>
        <source>An earlier recording task could not be ended.</source>
        <translation>Ein früherer Aufnahmeprozess konnte nicht beendet werden.</translation>
    </message>
    <message>
        <source>The recording was stopped.</source>
        <translation>Die Aufnahme wurde beendet.</translation>
    </message>
    <message>
        <source>No sound is coming in.</source>
        <translation>Es kommt kein Ton an.</translation>
    </message>
    <message>
        <source>Recordings missed</source>
        <translation>Aufnahmen verpasst</translation>
    </message>
    <message>
        <source>No desktop notifications</source>
        <translation>Keine Desktop-Benachrichtigungen</translation>
    </message>
    <message>
        <source>The desktop shows no notifications: </source>
        <translation>Die Arbeitsumgebung zeigt keine Benachrichtigungen: </translation>
    </message>
    <message>
        <source>Disk space low</source>
        <translation>Wenig Speicherplatz</translation>
    </message>
    <message>
        <source>Less than %1 Megabytes are free in the recording folder.</source>
        <translation>Im Aufnahmeordner sind weniger als %1 Megabyte frei.</translation>
    </message>
    <message>
        <source>Recording task not responding</source>
        <translation>Aufnahmeprozess antwortet nicht</translation>
    </message>
    <message>
        <source>Recording stopped: disk nearly full</source>
        <translation>Aufnahme beendet: Datenträger fast voll</translation>
    </message>
    <message>
        <source>Recording is silent</source>
        <translation>Aufnahme ist stumm</translation>
    </message>
    <message>
        <source>MP3 conversion failed</source>
        <translation>MP3-Umwandlung fehlgeschlagen</translation>
    </message>
    <message>
        <source>MP3 conversion stopped: disk nearly full</source>
        <translation>MP3-Umwandlung beendet: Datenträger fast voll</translation>
    </message>
</context>
<context>
    <name>RecordingControl</name>
    <message>
        <source>Nightreel 2000 %1.%2</source>
        <translation>Nightreel 2000 %1.%2</translation>
    </message>
    <message>
        <source>Recording saved under a new name</source>
        <translation>Aufnahme unter neuem Namen gespeichert</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; is already in the recording folder and is kept. The recording &quot;%2&quot; is saved as &quot;%3&quot;.</source>
        <translation>Im Aufnahmeordner liegt bereits eine Datei namens „%1“; sie bleibt erhalten. Die Aufnahme „%2“ wird als „%3“ gespeichert.</translation>
    </message>
    <message>
        <source>   (Kept as broadcast)</source>
        <translation>   (wie gesendet behalten)</translation>
    </message>
    <message>
        <source>No response from recording task.</source>
        <translation>Keine Antwort vom Aufnahmeprozess.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Invalid Recording Directory. Select a recording directory in Options.</source>
        <translation>Ungültiges Aufnahmeverzeichnis. Wählen Sie in den Einstellungen ein Aufnahmeverzeichnis.</translation>
    </message>
    <message>
        <source>Note: Converted MP3 recordings require additional storage for the initial PCM wave file recording.<byte value="xd"/>
</source>
        <translation>Hinweis: In MP3 umgewandelte Aufnahmen brauchen zusätzlichen Platz für die zunächst aufgenommene PCM-Wave-Datei.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source> Additional space is also needed for any temporary PCM files that are currently being converted to MP3.</source>
        <translation> Zusätzlicher Platz wird außerdem für temporäre PCM-Dateien benötigt, die gerade in MP3 umgewandelt werden.</translation>
    </message>
    <message>
        <source>Recording not started due to insufficient disk space.</source>
        <translation>Aufnahme wegen zu wenig Speicherplatz nicht gestartet.</translation>
    </message>
    <message>
        <source>The recording was not started since there is not enough disk space.  Remove recordings from disk, change the recording directory to a different disk drive, or shorten the recording time. </source>
        <translation>Die Aufnahme wurde nicht gestartet, weil nicht genug Speicherplatz frei ist. Löschen Sie Aufnahmen vom Datenträger, wählen Sie ein Aufnahmeverzeichnis auf einem anderen Datenträger oder verkürzen Sie die Aufnahmezeit. </translation>
    </message>
    <message>
        <source>This will stop and convert the recording in progress to MP3.  Are you sure you want to stop recording?</source>
        <translation>Die laufende Aufnahme wird beendet und in MP3 umgewandelt. Möchten Sie die Aufnahme wirklich beenden?</translation>
    </message>
    <message>
        <source>This will stop and save the recording in progress.  Are you sure you want to stop recording?</source>
        <translation>Die laufende Aufnahme wird beendet und gespeichert. Möchten Sie die Aufnahme wirklich beenden?</translation>
    </message>
    <message>
        <source>Nightreel 2000</source>
        <translation>Nightreel 2000</translation>
    </message>
    <message>
        <source>This will stop and save the MP3 conversion in progress.  Are you sure you want to stop the MP3 conversion?</source>
        <translation>Die laufende MP3-Umwandlung wird beendet und gespeichert. Möchten Sie die MP3-Umwandlung wirklich beenden?</translation>
    </message>
    <message>
        <source>This will stop and save the MP3 conversion in progress and abort the remaining MP3 conversions in the queue.   Are you sure you want to stop the MP3 conversion?</source>
        <translation>Die laufende MP3-Umwandlung wird beendet und gespeichert, die übrigen MP3-Umwandlungen in der Warteschlange werden abgebrochen. Möchten Sie die MP3-Umwandlung wirklich beenden?</translation>
    </message>
    <message>
        <source>Recording failed</source>
        <translation>Aufnahme fehlgeschlagen</translation>
    </message>
    <message>
        <source>The following recording failed since no recording data was written:<byte value="xd"/>
</source>
        <translation>Die folgende Aufnahme ist fehlgeschlagen, weil keine Aufnahmedaten geschrieben wurden:<byte value="xd"/>
</translation>
    </message>
    <message>
        <source><byte value="xd"/>
<byte value="xd"/>
Try a different recording format or bit rate.  If you are performing a short (under 30 seconds) recording, try extending the time by a few seconds.</source>
        <translation><byte value="xd"/>
<byte value="xd"/>
Versuchen Sie ein anderes Aufnahmeformat oder eine andere Bitrate. Bei einer kurzen Aufnahme (unter 30 Sekunden) verlängern Sie die Zeit um einige Sekunden.</translation>
    </message>
    <message>
        <source>Streaming player not closed</source>
        <translation>Streaming-Player nicht geschlossen</translation>
    </message>
    <message>
        <source>There is no display to close it on.</source>
        <translation>Es gibt keine Anzeige, auf der er geschlossen werden kann.</translation>
    </message>
    <message>
        <source>Nightreel 2000 Recording</source>
        <translation>Nightreel-2000-Aufnahme</translation>
    </message>
    <message>
        <source>Perform a test recording with a PCM recording format. If the error does not reoccur, there may have been a problem with the recording format.  Otherwise, the recording task may be locked and require a system restart. <byte value="xd"/>The error occurred during the following recording: </source>
        <translation>Machen Sie eine Testaufnahme in einem PCM-Aufnahmeformat. Tritt der Fehler dann nicht wieder auf, lag es vermutlich am Aufnahmeformat. Andernfalls hängt der Aufnahmeprozess möglicherweise und erfordert einen Neustart des Systems. <byte value="xd"/>Der Fehler trat bei folgender Aufnahme auf: </translation>
    </message>
</context>
<context>
    <name>RecordingInputBox</name>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Eingang</translation>
    </message>
    <message>
        <source>The level of the chosen input now</source>
        <translation>Der aktuelle Pegel des gewählten Eingangs</translation>
    </message>
</context>
<context>
    <name>RecordingTaskErrors</name>
    <message>
        <source>Error communicating with recording task</source>
        <translation>Fehler bei der Verbindung mit dem Aufnahmeprozess</translation>
    </message>
    <message>
        <source>The scheduler communicates with the recording task via a disk file.  There may have occurred an error during writing or reading the file.  If problem continues, try restarting the software or rebooting system.  If this does not work, try selecting a different recording format.</source>
        <translation>Das Programm verständigt sich mit dem Aufnahmeprozess über eine Datei. Beim Schreiben oder Lesen dieser Datei ist möglicherweise ein Fehler aufgetreten. Besteht das Problem weiter, starten Sie die Software oder das System neu. Hilft das nicht, wählen Sie ein anderes Aufnahmeformat.</translation>
    </message>
    <message>
        <source>Error writing recording file.</source>
        <translation>Fehler beim Schreiben der Aufnahmedatei.</translation>
    </message>
    <message>
        <source>The recording task was unable to advance the I/O buffer while writing recording.  Possible causes may include insufficient system disk space or memory or there may be a problem with the recording format. Try closing unused programs, checking disk space, and restarting the software.  If this does not work try a different recording format.</source>
        <translation>Der Aufnahmeprozess konnte den E/A-Puffer beim Schreiben der Aufnahme nicht weiterschalten. Mögliche Ursachen sind zu wenig Speicherplatz oder Arbeitsspeicher oder ein Problem mit dem Aufnahmeformat. Schließen Sie nicht benötigte Programme, prüfen Sie den Speicherplatz und starten Sie die Software neu. Hilft das nicht, versuchen Sie ein anderes Aufnahmeformat.</translation>
    </message>
    <message>
        <source>Error occurred during recording process.</source>
        <translation>Fehler während der Aufnahme.</translation>
    </message>
    <message>
        <source>The recording task was not able to obtain audio metrics from the operating system.  If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation>Der Aufnahmeprozess konnte keine Audiodaten vom Betriebssystem abfragen. Tritt das Problem erneut auf, starten Sie die Software oder das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to allocate memory to store wave format information. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation>Der Aufnahmeprozess konnte keinen Speicher für die Wave-Formatangaben belegen. Tritt das Problem erneut auf, starten Sie die Software oder das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to lock memory that stores wave format information. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation>Der Aufnahmeprozess konnte den Speicher mit den Wave-Formatangaben nicht sperren. Tritt das Problem erneut auf, starten Sie die Software oder das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to allocate memory to store wave header information. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation>Der Aufnahmeprozess konnte keinen Speicher für die Wave-Kopfdaten belegen. Tritt das Problem erneut auf, starten Sie die Software oder das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to lock memory that stores wave header information. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation>Der Aufnahmeprozess konnte den Speicher mit den Wave-Kopfdaten nicht sperren. Tritt das Problem erneut auf, starten Sie die Software oder das System neu.</translation>
    </message>
    <message>
        <source>Error Opening Wave Input File.</source>
        <translation>Fehler beim Öffnen des Wave-Eingangs.</translation>
    </message>
    <message>
        <source>Error preparing header for recording</source>
        <translation>Fehler beim Vorbereiten der Kopfdaten für die Aufnahme</translation>
    </message>
    <message>
        <source>Error Creating Wave File.</source>
        <translation>Fehler beim Erstellen der Wave-Datei.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the Wave file.  Check if the recording media is writable and has enough disk space. If this problem occurs again, try a different recording format, recording folder, or disk drive.  If the problem persists, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte die Wave-Datei nicht erstellen. Prüfen Sie, ob der Datenträger beschreibbar ist und genug freien Platz hat. Tritt das Problem erneut auf, versuchen Sie ein anderes Aufnahmeformat, einen anderen Aufnahmeordner oder einen anderen Datenträger. Besteht das Problem weiter, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave fact chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den fact-Abschnitt der Aufnahmedatei nicht erstellen. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave data chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den data-Abschnitt der Aufnahmedatei nicht erstellen. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to obtain the wave information from the system.  Try selecting a different recording format. If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte die Wave-Angaben nicht vom System abfragen. Wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to start wave recording. Check the recording drive disk space, or try selecting a different recording format.  Check the recording drive disk space.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte die Wave-Aufnahme nicht starten. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to write the subject name info chunk of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den Info-Abschnitt mit dem Titel nicht in die Aufnahmedatei schreiben. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task encountered an error while during the recording stop. If this problem occurs again, try selecting a different recording format. If problem persists, try restarting system.</source>
        <translation>Beim Beenden der Aufnahme ist im Aufnahmeprozess ein Fehler aufgetreten. Tritt das Problem erneut auf, wählen Sie ein anderes Aufnahmeformat. Besteht das Problem weiter, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>Error Closing Input Device.</source>
        <translation>Fehler beim Schließen des Eingangs.</translation>
    </message>
    <message>
        <source>The recording task encountered an error closing the sound server input stream. If this problem occurs again, try selecting a different recording format. If problem persists, try restarting system.</source>
        <translation>Beim Schließen des Eingangsstroms des Soundservers ist im Aufnahmeprozess ein Fehler aufgetreten. Tritt das Problem erneut auf, wählen Sie ein anderes Aufnahmeformat. Besteht das Problem weiter, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>Error Closing Wave File.</source>
        <translation>Fehler beim Schließen der Wave-Datei.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave list chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den LIST-Abschnitt der Aufnahmedatei nicht erstellen. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave software info chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den Info-Abschnitt mit der Software nicht in der Aufnahmedatei erstellen. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave subject name info chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den Info-Abschnitt mit dem Titel nicht in der Aufnahmedatei erstellen. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave subject date info chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den Info-Abschnitt mit dem Datum nicht in der Aufnahmedatei erstellen. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to write the wave wave subject date chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den Info-Abschnitt mit dem Datum nicht in die Aufnahmedatei schreiben. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>Error flushing recording file.</source>
        <translation>Fehler beim Zurückschreiben der Aufnahmedatei.</translation>
    </message>
    <message>
        <source>Another application is recording audio.</source>
        <translation>Ein anderes Programm nimmt gerade Ton auf.</translation>
    </message>
    <message>
        <source>Another application is using the recording device. Stop that application and try again to record using Nightreel.  If the recording device is still locked, a system restart may be required.</source>
        <translation>Ein anderes Programm verwendet das Aufnahmegerät. Beenden Sie dieses Programm und versuchen Sie die Aufnahme mit Nightreel erneut. Ist das Aufnahmegerät weiterhin gesperrt, kann ein Neustart des Systems nötig sein.</translation>
    </message>
    <message>
        <source>No audio driver found for recording.</source>
        <translation>Kein Audiotreiber für die Aufnahme gefunden.</translation>
    </message>
    <message>
        <source>If this error persists even after restarting the system, check that the sound server (PulseAudio or PipeWire) is installed and running.</source>
        <translation>Besteht dieser Fehler auch nach einem Neustart des Systems, prüfen Sie, ob der Soundserver (PulseAudio oder PipeWire) installiert ist und läuft.</translation>
    </message>
    <message>
        <source>Out of memory error while opening Wave input file.</source>
        <translation>Zu wenig Arbeitsspeicher beim Öffnen des Wave-Eingangs.</translation>
    </message>
    <message>
        <source>Try recording with different recording format. If the problem persists, try restarting the software or rebooting the system.</source>
        <translation>Versuchen Sie die Aufnahme mit einem anderen Aufnahmeformat. Besteht das Problem weiter, starten Sie die Software oder das System neu.</translation>
    </message>
    <message>
        <source>Bad Recording Format.</source>
        <translation>Ungültiges Aufnahmeformat.</translation>
    </message>
    <message>
        <source>Internet stream could not be reached.</source>
        <translation>Internetstream nicht erreichbar.</translation>
    </message>
    <message>
        <source>The stream was tried again and again until the end of the recording.  Check the address with Test in the program&apos;s Source; the station may have moved or be off the air.</source>
        <translation>Der Stream wurde bis zum Ende der Aufnahme immer wieder versucht. Prüfen Sie die Adresse mit „Testen“ unter der Quelle der Sendung; der Sender ist vielleicht umgezogen oder sendet nicht.</translation>
    </message>
    <message>
        <source>Error occurred During Recording Process</source>
        <translation>Fehler während der Aufnahme</translation>
    </message>
    <message>
        <source>Error #</source>
        <translation>Fehler Nr. </translation>
    </message>
    <message>
        <source> Try changing recording format, restarting system, or checking hardware or system software configuration.</source>
        <translation> Versuchen Sie ein anderes Aufnahmeformat, starten Sie das System neu oder prüfen Sie die Hardware und die Einrichtung der Systemsoftware.</translation>
    </message>
    <message>
        <source>The scheduler communicates with the recording task via a disk file which may be locked.  Try restarting the software or rebooting system to unlock the file.  If this error re-occurs, the disk containing the TEMP folder may be full or read-only. It is also possible that the TEMP folder setting may be corrupt.</source>
        <translation>Das Programm verständigt sich mit dem Aufnahmeprozess über eine Datei, die möglicherweise gesperrt ist. Starten Sie die Software oder das System neu, um die Datei freizugeben. Tritt der Fehler erneut auf, ist der Datenträger mit dem temporären Ordner vielleicht voll oder schreibgeschützt, oder die Einstellung des temporären Ordners ist beschädigt.</translation>
    </message>
    <message>
        <source>The recording task was not able to allocate memory to store the wave buffer. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation>Der Aufnahmeprozess konnte keinen Speicher für den Wave-Puffer belegen. Tritt das Problem erneut auf, starten Sie die Software oder das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to lock memory that stores the wave buffer. If this problem occurs again, try restarting the software or rebooting system.</source>
        <translation>Der Aufnahmeprozess konnte den Speicher des Wave-Puffers nicht sperren. Tritt das Problem erneut auf, starten Sie die Software oder das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to open the wave input file.  This error can occur if the recording format is not fully supported, the recording device in use by another program, or if recording device is locked. Stop or close any program that may be holding the sound input.  If the problem reoccurs or no other program is using the sound input, try a different recording format. If the problem persists, try restarting the software or rebooting the system.</source>
        <translation>Der Aufnahmeprozess konnte den Wave-Eingang nicht öffnen. Das kann vorkommen, wenn das Aufnahmeformat nicht vollständig unterstützt wird, das Aufnahmegerät von einem anderen Programm verwendet wird oder gesperrt ist. Beenden oder schließen Sie alle Programme, die den Toneingang belegen könnten. Tritt das Problem erneut auf oder verwendet kein anderes Programm den Toneingang, versuchen Sie ein anderes Aufnahmeformat. Besteht das Problem weiter, starten Sie die Software oder das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave chunk portion of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den RIFF-Abschnitt der Aufnahmedatei nicht erstellen. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave format chunk portion of the recording file. Check the recording drive disk space or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den fmt-Abschnitt der Aufnahmedatei nicht erstellen. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to create the wave format data portion of the recording file. Check the recording drive disk space or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte die Formatdaten der Aufnahmedatei nicht erstellen. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to write the wave fact portion of the recording file. Check the recording drive disk space, or try selecting a different recording format. If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den fact-Abschnitt nicht in die Aufnahmedatei schreiben. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to write the software info chunk of the recording file. Check the recording drive disk space, or try selecting a different recording format.  If this problem occurs again, try restarting system.</source>
        <translation>Der Aufnahmeprozess konnte den Info-Abschnitt mit der Software nicht in die Aufnahmedatei schreiben. Prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Tritt das Problem erneut auf, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task was not able to add recording buffer during the recording process. If this problem occurs again, try selecting a different recording format. If problem persists even after changing the recording format, the recording device may be locked as a result of a bad recording format. It this is the case, a system restart is needed.</source>
        <translation>Der Aufnahmeprozess konnte während der Aufnahme keinen Aufnahmepuffer hinzufügen. Tritt das Problem erneut auf, wählen Sie ein anderes Aufnahmeformat. Besteht das Problem auch mit einem anderen Aufnahmeformat weiter, ist das Aufnahmegerät wegen eines ungeeigneten Formats möglicherweise gesperrt; dann ist ein Neustart des Systems nötig.</translation>
    </message>
    <message>
        <source>The recording task encountered an error during the unpreparing of header 1 during the recording process. If this problem occurs again, try selecting a different recording format. If problem persists, try restarting system.</source>
        <translation>Beim Freigeben der Kopfdaten während der Aufnahme ist im Aufnahmeprozess ein Fehler aufgetreten. Tritt das Problem erneut auf, wählen Sie ein anderes Aufnahmeformat. Besteht das Problem weiter, starten Sie das System neu.</translation>
    </message>
    <message>
        <source>The recording task encountered an error closing the wave file. If this problem occurs again, check the disk space of the recording drive, or try selecting a different recording format. If problem persists, try restarting system.</source>
        <translation>Beim Schließen der Wave-Datei ist im Aufnahmeprozess ein Fehler aufgetreten. Tritt das Problem erneut auf, prüfen Sie den freien Speicherplatz des Aufnahmelaufwerks oder wählen Sie ein anderes Aufnahmeformat. Besteht das Problem weiter, starten Sie das System neu.</translation>
    </message>
</context>
<context>
    <name>RecordingTaskLink</name>
    <message>
        <source>Error removing Recording Process.</source>
        <translation>Fehler beim Entfernen des Aufnahmeprozesses.</translation>
    </message>
    <message>
        <source>This may require the system to be restarted.</source>
        <translation>Möglicherweise muss das System neu gestartet werden.</translation>
    </message>
    <message>
        <source>Error activating recording task.</source>
        <translation>Fehler beim Starten des Aufnahmeprozesses.</translation>
    </message>
    <message>
        <source>Timeout occurred.  Try restarting software or rebooting system. If problem persists try a different recording format.</source>
        <translation>Zeitüberschreitung. Starten Sie die Software oder das System neu. Besteht das Problem weiter, versuchen Sie ein anderes Aufnahmeformat.</translation>
    </message>
    <message>
        <source>Timeout occurred.  - Try restarting software or rebooting system. If problem persists try a different recording format.</source>
        <translation>Zeitüberschreitung. – Starten Sie die Software oder das System neu. Besteht das Problem weiter, versuchen Sie ein anderes Aufnahmeformat.</translation>
    </message>
    <message>
        <source>Run Time Error</source>
        <translation>Laufzeitfehler</translation>
    </message>
    <message>
        <source>Unexpected code from recording process.  Code=</source>
        <translation>Unerwarteter Code vom Aufnahmeprozess. Code=</translation>
    </message>
    <message>
        <source> If problem persists, try a different recording format or restarting the system</source>
        <translation> Besteht das Problem weiter, versuchen Sie ein anderes Aufnahmeformat oder starten Sie das System neu</translation>
    </message>
</context>
<context>
    <name>RecordingsList</name>
    <message>
        <source>Recording was not deleted from disk.</source>
        <translation>Aufnahme wurde nicht vom Datenträger gelöscht.</translation>
    </message>
    <message>
        <source>File may be read only, or locked by another process.<byte value="xd"/>
Filename: </source>
        <translation>Die Datei ist vielleicht schreibgeschützt oder von einem anderen Prozess gesperrt.<byte value="xd"/>
Dateiname: </translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>%1 Hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <source>1 Minute</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <source>%1 Minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <source>1 Second</source>
        <translation>1 Sekunde</translation>
    </message>
    <message>
        <source>%1 Seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
</context>
<context>
    <name>RecordingsListCommands</name>
    <message>
        <source>Recording file not found</source>
        <translation>Aufnahmedatei nicht gefunden</translation>
    </message>
    <message>
        <source>This recording was not found on disk.  The disk file may have deleted or moved.  If this file was on removable media verify that the recording is on the media. It is also possible that the disk drive letters may have been changed by the operating system after system reboot.</source>
        <translation>Diese Aufnahme wurde auf dem Datenträger nicht gefunden. Die Datei wurde vielleicht gelöscht oder verschoben. Lag die Datei auf einem Wechseldatenträger, prüfen Sie, ob er eingesteckt ist. Es ist auch möglich, dass der Datenträger nach einem Neustart unter einem anderen Pfad eingehängt wurde.</translation>
    </message>
    <message>
        <source>WAV and MP3 files (*.wav *.mp3 *.WAV *.MP3);;WAV files (*.wav *.WAV);;MP3 files (*.mp3 *.MP3)</source>
        <translation>WAV- und MP3-Dateien (*.wav *.mp3 *.WAV *.MP3);;WAV-Dateien (*.wav *.WAV);;MP3-Dateien (*.mp3 *.MP3)</translation>
    </message>
    <message>
        <source>Remove Selected Recordings From List</source>
        <translation>Ausgewählte Aufnahmen aus der Liste entfernen</translation>
    </message>
    <message>
        <source>The selected recordings will be removed from the recording list.  The recordings will not be deleted from disk. Proceed?</source>
        <translation>Die ausgewählten Aufnahmen werden aus der Aufnahmeliste entfernt. Die Aufnahmen selbst werden nicht vom Datenträger gelöscht. Fortfahren?</translation>
    </message>
    <message>
        <source>Remove Recordings From Disk</source>
        <translation>Aufnahmen vom Datenträger löschen</translation>
    </message>
    <message>
        <source>This will remove recordings PERMANENTLY from disk. Are you sure you want to delete the selected recordings?</source>
        <translation>Die Aufnahmen werden ENDGÜLTIG vom Datenträger gelöscht. Möchten Sie die ausgewählten Aufnahmen wirklich löschen?</translation>
    </message>
    <message>
        <source>Clear Recordings List</source>
        <translation>Aufnahmeliste leeren</translation>
    </message>
    <message>
        <source>All recordings will be removed from the recording list.  The recordings will not be deleted from disk. Proceed?</source>
        <translation>Alle Aufnahmen werden aus der Aufnahmeliste entfernt. Die Aufnahmen selbst werden nicht vom Datenträger gelöscht. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>RecordsetModel</name>
    <message>
        <source>Sound server input</source>
        <translation>Eingang des Soundservers</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>RegKeys</name>
    <message>
        <source>Error saving setting in registry.</source>
        <translation>Fehler beim Speichern einer Einstellung.</translation>
    </message>
</context>
<context>
    <name>Scheduler</name>
    <message>
        <source>Missed recordings</source>
        <translation>Verpasste Aufnahmen</translation>
    </message>
    <message>
        <source>Nightreel 2000 has determined that some of the one-time recordings were not performed since the scheduled recording time is prior to the current date/time. Removed all expired scheduled programs?</source>
        <translation>Nightreel 2000 hat festgestellt, dass einige einmalige Aufnahmen nicht stattgefunden haben, weil ihre geplante Zeit vor dem aktuellen Datum bzw. der aktuellen Uhrzeit liegt. Alle abgelaufenen geplanten Sendungen entfernen?</translation>
    </message>
</context>
<context>
    <name>SilenceAlarm</name>
    <message>
        <source>no signal at all</source>
        <translation>überhaupt kein Signal</translation>
    </message>
    <message>
        <source> dBFS</source>
        <translation> dBFS</translation>
    </message>
    <message>
        <source>Recording: </source>
        <translation>Aufnahme: </translation>
    </message>
    <message>
        <source><byte value="xd"/>
Source: </source>
        <translation><byte value="xd"/>
Quelle: </translation>
    </message>
    <message>
        <source><byte value="xd"/>
Peak level: </source>
        <translation><byte value="xd"/>
Spitzenpegel: </translation>
    </message>
    <message>
        <source>Recording is silent</source>
        <translation>Aufnahme ist stumm</translation>
    </message>
    <message>
        <source>Recording has sound again</source>
        <translation>Aufnahme hat wieder Ton</translation>
    </message>
</context>
<context>
    <name>SourceChooser</name>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Internet stream</source>
        <translation>Internetstream</translation>
    </message>
    <message>
        <source>http://… or https://…, or a .pls, .m3u or .m3u8 list</source>
        <translation>http://… oder https://… oder eine .pls-, .m3u- oder .m3u8-Liste</translation>
    </message>
    <message>
        <source>A&amp;ddress</source>
        <translation>Ad&amp;resse</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Connecting and listening for a few seconds…</source>
        <translation>Verbindung wird hergestellt, einige Sekunden wird gelauscht …</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Test läuft …</translation>
    </message>
    <message>
        <source>The input chosen in the options</source>
        <translation>Der in den Einstellungen gewählte Eingang</translation>
    </message>
</context>
<context>
    <name>StatusBarPlus</name>
    <message>
        <source> minutes </source>
        <translation> Minuten </translation>
    </message>
    <message>
        <source> seconds </source>
        <translation> Sekunden </translation>
    </message>
    <message>
        <source>Disk Space Used: </source>
        <translation>Belegter Speicherplatz: </translation>
    </message>
    <message>
        <source>% used, </source>
        <translation> % belegt, </translation>
    </message>
    <message>
        <source> Megabytes remaining</source>
        <translation> Megabyte frei</translation>
    </message>
    <message>
        <source><byte value="xd"/>
Remove recordings from disk or change the recording directory to a different disk drive.</source>
        <translation><byte value="xd"/>
Löschen Sie Aufnahmen vom Datenträger oder wählen Sie ein Aufnahmeverzeichnis auf einem anderen Datenträger.</translation>
    </message>
    <message>
        <source>Recording stopped due to insufficient disk space.</source>
        <translation>Aufnahme wegen zu wenig Speicherplatz beendet.</translation>
    </message>
    <message>
        <source>Recording Description: </source>
        <translation>Beschreibung der Aufnahme: </translation>
    </message>
    <message>
        <source>MP3 conversion stopped due to insufficient disk space.</source>
        <translation>MP3-Umwandlung wegen zu wenig Speicherplatz beendet.</translation>
    </message>
    <message>
        <source>Remove recordings from disk or change the default recording directory to a different disk drive.</source>
        <translation>Löschen Sie Aufnahmen vom Datenträger oder wählen Sie ein Standard-Aufnahmeverzeichnis auf einem anderen Datenträger.</translation>
    </message>
    <message>
        <source><byte value="xd"/>
Remove recordings from disk or change the recording directory to a different disk drive.  Note: MP3 conversion also requires temporary storage for the PCM recording in the default recording folder.  Since the PCM file is several times larger than the MP3 file, plenty of space is needed. Space is also needed for any temporary PCM files which have not finished converting.</source>
        <translation><byte value="xd"/>
Löschen Sie Aufnahmen vom Datenträger oder wählen Sie ein Aufnahmeverzeichnis auf einem anderen Datenträger. Hinweis: Die MP3-Umwandlung braucht außerdem vorübergehend Platz für die PCM-Aufnahme im Standard-Aufnahmeordner. Da die PCM-Datei um ein Mehrfaches größer ist als die MP3-Datei, wird reichlich Platz benötigt. Platz wird auch für temporäre PCM-Dateien benötigt, deren Umwandlung noch nicht abgeschlossen ist.</translation>
    </message>
</context>
<context>
    <name>StreamAddress</name>
    <message>
        <source>Please enter the address of the internet stream.</source>
        <translation>Bitte geben Sie die Adresse des Internetstreams ein.</translation>
    </message>
    <message>
        <source>The address of an internet stream must begin with http:// or https://, such as http://radio.example.org/live.mp3, or name a .pls, .m3u or .m3u8 list.</source>
        <translation>Die Adresse eines Internetstreams muss mit http:// oder https:// beginnen, etwa http://radio.example.org/live.mp3, oder eine .pls-, .m3u- oder .m3u8-Liste angeben.</translation>
    </message>
</context>
<context>
    <name>StreamGapLog</name>
    <message>
        <source>Internet stream interrupted</source>
        <translation>Internetstream unterbrochen</translation>
    </message>
    <message>
        <source>Recording: %1<byte value="xd"/>
Stream: %2<byte value="xd"/>
The stream was lost at %3 for %4 seconds; the recording went on.</source>
        <translation>Aufnahme: %1<byte value="xd"/>
Stream: %2<byte value="xd"/>
Der Stream ging um %3 für %4 Sekunden verloren; die Aufnahme lief weiter.</translation>
    </message>
</context>
<context>
    <name>StreamTest</name>
    <message>
        <source>The recording task could not be started to test the stream.</source>
        <translation>Der Aufnahmeprozess konnte zum Testen des Streams nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The stream could not be played: no answer within %1 seconds.</source>
        <translation>Der Stream konnte nicht abgespielt werden: keine Antwort innerhalb von %1 Sekunden.</translation>
    </message>
    <message>
        <source>The stream could not be tested.</source>
        <translation>Der Stream konnte nicht getestet werden.</translation>
    </message>
    <message>
        <source>The stream could not be played: %1.</source>
        <translation>Der Stream konnte nicht abgespielt werden: %1.</translation>
    </message>
    <message>
        <source>unknown codec</source>
        <translation>unbekannter Codec</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kBit/s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>mono</source>
        <translation>mono</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>stereo</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 Kanäle</translation>
    </message>
    <message>
        <source>; station: %1</source>
        <translation>; Sender: %1</translation>
    </message>
</context>
<context>
    <name>StreamingPlayer</name>
    <message>
        <source>Streaming player on Wayland</source>
        <translation>Streaming-Player unter Wayland</translation>
    </message>
    <message>
        <source>On a Wayland session only players that run as X11 programs (XWayland) can be closed: native Wayland windows can&apos;t be.</source>
        <translation>In einer Wayland-Sitzung lassen sich nur Player schließen, die als X11-Programme (XWayland) laufen; native Wayland-Fenster nicht.</translation>
    </message>
</context>
<context>
    <name>SysTrayIcon</name>
    <message>
        <source>This desktop has no notification area (system tray) to hide Nightreel 2000 in: the window is minimised to the task bar instead, and a hidden start starts minimised.</source>
        <translation>Diese Arbeitsumgebung hat keinen Systembereich (Infobereich), in dem Nightreel 2000 verborgen werden kann: Das Fenster wird stattdessen in die Taskleiste minimiert, und ein verborgener Start startet minimiert.</translation>
    </message>
</context>
<context>
    <name>TimeSlider</name>
    <message>
        <source>Time Control</source>
        <translation>Zeitregler</translation>
    </message>
</context>
<context>
    <name>ViewHtmlFile</name>
    <message>
        <source>Path/File access error: </source>
        <translation>Fehler beim Zugriff auf Pfad/Datei: </translation>
    </message>
    <message>
        <source>Browser Not Found</source>
        <translation>Browser nicht gefunden</translation>
    </message>
    <message>
        <source>Could not find associated Browser</source>
        <translation>Es wurde kein zugeordneter Browser gefunden</translation>
    </message>
    <message>
        <source>URL Failed</source>
        <translation>URL fehlgeschlagen</translation>
    </message>
    <message>
        <source>Web Page not Opened</source>
        <translation>Webseite nicht geöffnet</translation>
    </message>
</context>
<context>
    <name>clsAppStatus</name>
    <message>
        <source>Invalid request</source>
        <translation>Ungültige Anforderung</translation>
    </message>
    <message>
        <source>Please stop the recording in process prior to suspending.</source>
        <translation>Bitte beenden Sie die laufende Aufnahme, bevor Sie das Programm aussetzen.</translation>
    </message>
    <message>
        <source>Please stop the MP3 conversion in process prior to suspending.</source>
        <translation>Bitte beenden Sie die laufende MP3-Umwandlung, bevor Sie das Programm aussetzen.</translation>
    </message>
    <message>
        <source>Suspend Nightreel 2000</source>
        <translation>Nightreel 2000 aussetzen</translation>
    </message>
    <message>
        <source>This will suspend Nightreel 2000. No recording will take place while suspended. Proceed?</source>
        <translation>Nightreel 2000 wird ausgesetzt. Solange es ausgesetzt ist, wird nichts aufgenommen. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>clsError</name>
    <message>
        <source>Errors or warnings are present - Click to view</source>
        <translation>Es liegen Fehler oder Warnungen vor – zum Anzeigen klicken</translation>
    </message>
    <message>
        <source>Error occurred - click to view</source>
        <translation>Ein Fehler ist aufgetreten – zum Anzeigen klicken</translation>
    </message>
    <message>
        <source>Errors occurred - click to view</source>
        <translation>Fehler sind aufgetreten – zum Anzeigen klicken</translation>
    </message>
    <message>
        <source>No sound server input found.  Check that PulseAudio or PipeWire is running and that an input is not disabled.</source>
        <translation>Kein Eingang des Soundservers gefunden. Prüfen Sie, ob PulseAudio oder PipeWire läuft und ob ein Eingang aktiviert ist.</translation>
    </message>
    <message>
        <source>Invalid Recording Folder.  Go to View/Options and select a recording folder.</source>
        <translation>Ungültiger Aufnahmeordner. Wählen Sie unter Ansicht/Einstellungen einen Aufnahmeordner.</translation>
    </message>
    <message>
        <source>Disk Low - no further recording allowed.  Delete recordings from disk or change recording folder. You can also change the limit to stop recording in View/Options.</source>
        <translation>Datenträger fast voll – keine weiteren Aufnahmen möglich. Löschen Sie Aufnahmen vom Datenträger oder wählen Sie einen anderen Aufnahmeordner. Die Grenze, ab der Aufnahmen beendet werden, können Sie unter Ansicht/Einstellungen ändern.</translation>
    </message>
    <message>
        <source>Disk Low Warning.  Delete recordings from disk or change recording folder. You can also change the disk warning limit in View/Options.</source>
        <translation>Warnung: Datenträger fast voll. Löschen Sie Aufnahmen vom Datenträger oder wählen Sie einen anderen Aufnahmeordner. Die Warngrenze können Sie unter Ansicht/Einstellungen ändern.</translation>
    </message>
    <message>
        <source>The Error Log is Full. Go to View/Error Log (or press the View Error Log button below) and remove all event log items. </source>
        <translation>Das Fehlerprotokoll ist voll. Öffnen Sie Ansicht/Fehlerprotokoll (oder klicken Sie unten auf „Fehlerprotokoll anzeigen“) und entfernen Sie alle Einträge. </translation>
    </message>
    <message>
        <source>Database is missing. Go to Tools/Advanced/Restore Original Database to create new database.</source>
        <translation>Die Datenbank fehlt. Legen Sie unter Extras/Erweitert/Ursprüngliche Datenbank wiederherstellen eine neue Datenbank an.</translation>
    </message>
    <message>
        <source>Recording is silent.  Check that the source is playing and that its mixer levels are up; see the Error Log for the source.</source>
        <translation>Die Aufnahme ist stumm. Prüfen Sie, ob die Quelle spielt und ihre Mixerpegel aufgedreht sind; die Quelle steht im Fehlerprotokoll.</translation>
    </message>
</context>
<context>
    <name>clsRecordingFormat</name>
    <message>
        <source>Record in PCM format and convert to MP3; </source>
        <translation>Im PCM-Format aufnehmen und in MP3 umwandeln; </translation>
    </message>
    <message>
        <source>Record MP3 in real-time; </source>
        <translation>MP3 in Echtzeit aufnehmen; </translation>
    </message>
    <message>
        <source>Save as .MP3 file</source>
        <translation>Als .MP3-Datei speichern</translation>
    </message>
    <message>
        <source>Save as .WAV file</source>
        <translation>Als .WAV-Datei speichern</translation>
    </message>
    <message>
        <source>The temporary PCM file required for conversion exceeds 2 Gigabytes, which is the maximum size supported.  Please shorten the recording time or the recording format frequency.</source>
        <translation>Die für die Umwandlung nötige temporäre PCM-Datei überschreitet 2 Gigabyte, die höchste unterstützte Größe. Bitte verkürzen Sie die Aufnahmezeit oder verringern Sie die Abtastrate des Aufnahmeformats.</translation>
    </message>
    <message>
        <source>The recording exceeds 2 Gigabytes, which is the maximum size supported.  Please shorten the recording time or the recording format frequency.</source>
        <translation>Die Aufnahme überschreitet 2 Gigabyte, die höchste unterstützte Größe. Bitte verkürzen Sie die Aufnahmezeit oder verringern Sie die Abtastrate des Aufnahmeformats.</translation>
    </message>
</context>
<context>
    <name>clsSysTrayMgr</name>
    <message>
        <source>Nightreel 2000 - </source>
        <translation>Nightreel 2000 – </translation>
    </message>
    <message>
        <source>STOPPED</source>
        <translation>ANGEHALTEN</translation>
    </message>
    <message>
        <source>SUSPENDED</source>
        <translation>AUSGESETZT</translation>
    </message>
    <message>
        <source>RECORDING PAUSED</source>
        <translation>AUFNAHME UNTERBROCHEN</translation>
    </message>
    <message>
        <source>PLAYING and RECORDING</source>
        <translation>WIEDERGABE und AUFNAHME</translation>
    </message>
    <message>
        <source>RECORDING</source>
        <translation>AUFNAHME</translation>
    </message>
    <message>
        <source>PLAYING &amp; CONVERTING TO MP3</source>
        <translation>WIEDERGABE und UMWANDLUNG IN MP3</translation>
    </message>
    <message>
        <source>CONVERTING TO MP3</source>
        <translation>UMWANDLUNG IN MP3</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation>WIEDERGABE</translation>
    </message>
    <message>
        <source>Errors or warnings are present.</source>
        <translation>Es liegen Fehler oder Warnungen vor.</translation>
    </message>
    <message>
        <source>Error occurred, check the error log</source>
        <translation>Ein Fehler ist aufgetreten, bitte das Fehlerprotokoll prüfen</translation>
    </message>
    <message>
        <source>Errors occurred, check the error log</source>
        <translation>Fehler sind aufgetreten, bitte das Fehlerprotokoll prüfen</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>Nightreel 2000</source>
        <translation>Nightreel 2000</translation>
    </message>
    <message>
        <source>Version </source>
        <translation>Version </translation>
    </message>
    <message>
        <source>Copyright © Larkmoor Systems. All rights reserved.
Recording broadcasts may be subject to copyright; make sure you have the right to record what you schedule.</source>
        <translation>Copyright © Larkmoor Systems. Alle Rechte vorbehalten.
Das Aufnehmen von Sendungen kann urheberrechtlich geschützt sein; vergewissern Sie sich, dass Sie aufnehmen dürfen, was Sie planen.</translation>
    </message>
    <message>
        <source>Operating system: </source>
        <translation>Betriebssystem: </translation>
    </message>
    <message>
        <source>Kernel: </source>
        <translation>Kernel: </translation>
    </message>
    <message>
        <source>Processor architecture: </source>
        <translation>Prozessorarchitektur: </translation>
    </message>
    <message>
        <source>Program built for: </source>
        <translation>Programm erstellt für: </translation>
    </message>
    <message>
        <source>Computer name: </source>
        <translation>Rechnername: </translation>
    </message>
    <message>
        <source>Qt version: </source>
        <translation>Qt-Version: </translation>
    </message>
    <message>
        <source>About </source>
        <translation>Über </translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>&amp;Systeminformationen …</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>Systeminformationen</translation>
    </message>
</context>
<context>
    <name>frmAddMixerProfile</name>
    <message>
        <source>Add Mixer Profile</source>
        <translation>Mixerprofil hinzufügen</translation>
    </message>
    <message>
        <source>Enter mixer profile name</source>
        <translation>Name des Mixerprofils eingeben</translation>
    </message>
    <message>
        <source>The current mixer settings will be saved to the shown profile when the Save button is pressed.</source>
        <translation>Die aktuellen Mixereinstellungen werden beim Klick auf „Speichern“ im angegebenen Profil gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>frmDiskStatus</name>
    <message>
        <source>Disk Status</source>
        <translation>Datenträgerstatus</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Start Date/Time</source>
        <translation>Startdatum/-zeit</translation>
    </message>
    <message>
        <source>End Date/Time</source>
        <translation>Enddatum/-zeit</translation>
    </message>
    <message>
        <source>Mbytes</source>
        <translation>MByte</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Default Recording Drive: </source>
        <translation>Standard-Aufnahmelaufwerk: </translation>
    </message>
    <message>
        <source>Disk Space Used: </source>
        <translation>Belegter Speicherplatz: </translation>
    </message>
    <message>
        <source> Megabytes</source>
        <translation> Megabyte</translation>
    </message>
    <message>
        <source>Percent Used: </source>
        <translation>Belegt in Prozent: </translation>
    </message>
    <message>
        <source>Disk Capacity: </source>
        <translation>Kapazität des Datenträgers: </translation>
    </message>
    <message>
        <source>Disk Space Remaining: </source>
        <translation>Freier Speicherplatz: </translation>
    </message>
    <message>
        <source>Calculating Scheduled Recordings. Please Wait.</source>
        <translation>Geplante Aufnahmen werden berechnet. Bitte warten.</translation>
    </message>
    <message>
        <source>Scheduled Recordings and Remaining Disk Space After Recording</source>
        <translation>Geplante Aufnahmen und verbleibender Speicherplatz nach der Aufnahme</translation>
    </message>
</context>
<context>
    <name>frmElog</name>
    <message>
        <source>Error Log</source>
        <translation>Fehlerprotokoll</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Show the details of the selected entry</source>
        <translation>Details des ausgewählten Eintrags anzeigen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove all entries</source>
        <translation>Alle Einträge entfernen</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>&amp;Remove All</source>
        <translation>&amp;Alle entfernen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Remove All Error Log Entries</source>
        <translation>Alle Einträge des Fehlerprotokolls entfernen</translation>
    </message>
    <message>
        <source>This will clear the error log. Proceed?</source>
        <translation>Das Fehlerprotokoll wird geleert. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>frmElogDetails</name>
    <message>
        <source>Error Log Details</source>
        <translation>Details zum Fehlerprotokoll</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Uhrzeit:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>frmEnableDisablePrograms</name>
    <message>
        <source>Enable/Disable Programs</source>
        <translation>Sendungen aktivieren/deaktivieren</translation>
    </message>
    <message>
        <source>All selected programs will be enabled or disabled based on selection.</source>
        <translation>Alle ausgewählten Sendungen werden je nach Auswahl aktiviert oder deaktiviert.</translation>
    </message>
    <message>
        <source>&amp;Enable Programs</source>
        <translation>Sendungen a&amp;ktivieren</translation>
    </message>
    <message>
        <source>&amp;Disable Programs</source>
        <translation>Sendungen &amp;deaktivieren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmErrors</name>
    <message>
        <source>&amp;View Error Log</source>
        <translation>Fehlerprotokoll &amp;anzeigen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>The following error/warning conditions are present:</source>
        <translation>Folgende Fehler- bzw. Warnzustände liegen vor:</translation>
    </message>
    <message>
        <source>There is an unviewed error/warning in the error log.</source>
        <translation>Im Fehlerprotokoll steht ein ungelesener Fehler bzw. eine ungelesene Warnung.</translation>
    </message>
    <message>
        <source>There are </source>
        <translation>Im Fehlerprotokoll stehen </translation>
    </message>
    <message>
        <source> unviewed errors/warnings in the error log.</source>
        <translation> ungelesene Fehler bzw. Warnungen.</translation>
    </message>
</context>
<context>
    <name>frmLaunchProgramInfo</name>
    <message>
        <source>Launch Program Info</source>
        <translation>Programmstart – Hinweise</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>The application launch command after recording can contain any of the following symbols which will be substituted with the appropriate string:</source>
        <translation>Der Befehl zum Starten eines Programms nach der Aufnahme kann folgende Platzhalter enthalten, die durch die passende Zeichenkette ersetzt werden:</translation>
    </message>
    <message>
        <source>%d - recording file directory</source>
        <translation>%d – Ordner der Aufnahmedatei</translation>
    </message>
    <message>
        <source>%p - full recording file name including path</source>
        <translation>%p – vollständiger Name der Aufnahmedatei mit Pfad</translation>
    </message>
    <message>
        <source>%e - recording file name extension, not including the dot</source>
        <translation>%e – Dateiendung der Aufnahmedatei, ohne den Punkt</translation>
    </message>
    <message>
        <source>%% - the % character</source>
        <translation>%% – das Zeichen %</translation>
    </message>
    <message>
        <source>%b - recording file name without the path and extension</source>
        <translation>%b – Name der Aufnahmedatei ohne Pfad und Endung</translation>
    </message>
    <message>
        <source>%f - recording file name without the path</source>
        <translation>%f – Name der Aufnahmedatei ohne Pfad</translation>
    </message>
</context>
<context>
    <name>frmLoadList</name>
    <message>
        <source>&amp;Merge into current recordings list</source>
        <translation>Mit der aktuellen Aufnahmeliste &amp;zusammenführen</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Load Recordings List</source>
        <translation>Aufnahmeliste laden</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>No list exists</source>
        <translation>Keine Liste vorhanden</translation>
    </message>
    <message>
        <source>No recordings list files exist.  Please save a recordings list first.</source>
        <translation>Es gibt keine gespeicherten Aufnahmelisten. Bitte speichern Sie zuerst eine Aufnahmeliste.</translation>
    </message>
    <message>
        <source>Recordings from the selected saved list will be merged into the current recordings list. Proceed?</source>
        <translation>Die Aufnahmen der ausgewählten gespeicherten Liste werden mit der aktuellen Aufnahmeliste zusammengeführt. Fortfahren?</translation>
    </message>
    <message>
        <source>The current recordings list will be replaced with the selected saved list. Proceed?</source>
        <translation>Die aktuelle Aufnahmeliste wird durch die ausgewählte gespeicherte Liste ersetzt. Fortfahren?</translation>
    </message>
    <message>
        <source>Remove Recordings List</source>
        <translation>Aufnahmeliste entfernen</translation>
    </message>
    <message>
        <source>The selected recordings list will be permanently removed. Proceed?</source>
        <translation>Die ausgewählte Aufnahmeliste wird endgültig entfernt. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>RECORDING PAUSED</source>
        <translation>AUFNAHME UNTERBROCHEN</translation>
    </message>
    <message>
        <source>No notification area</source>
        <translation>Kein Systembereich</translation>
    </message>
</context>
<context>
    <name>frmMainUi</name>
    <message>
        <source>Nightreel 2000</source>
        <translation>Nightreel 2000</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>&amp;Programmierung</translation>
    </message>
    <message>
        <source>&amp;Recordings</source>
        <translation>Aufnahme&amp;liste</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Hide Window</source>
        <translation>Fenster &amp;verbergen</translation>
    </message>
    <message>
        <source>&amp;Suspend Nightreel 2000</source>
        <translation>Nightreel 2000 &amp;aussetzen</translation>
    </message>
    <message>
        <source>E&amp;xit Nightreel 2000</source>
        <translation>Nightreel 2000 &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>&amp;Sendungen</translation>
    </message>
    <message>
        <source>&amp;Disk Status</source>
        <translation>&amp;Datenträgerstatus</translation>
    </message>
    <message>
        <source>&amp;Errors/Warnings</source>
        <translation>&amp;Fehler/Warnungen</translation>
    </message>
    <message>
        <source>Error &amp;Log</source>
        <translation>Fehler&amp;protokoll</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>Pro&amp;gramming</source>
        <translation>Pro&amp;grammierung</translation>
    </message>
    <message>
        <source>&amp;Add New</source>
        <translation>&amp;Neue Sendung</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Clone</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>E&amp;nable/Disable</source>
        <translation>&amp;Aktivieren/Deaktivieren</translation>
    </message>
    <message>
        <source>Se&amp;lect All</source>
        <translation>Alle aus&amp;wählen</translation>
    </message>
    <message>
        <source>Re&amp;cordings</source>
        <translation>Auf&amp;nahmen</translation>
    </message>
    <message>
        <source>&amp;Play </source>
        <translation>&amp;Abspielen</translation>
    </message>
    <message>
        <source>&amp;Delete from Disk</source>
        <translation>Vom Datenträger lö&amp;schen</translation>
    </message>
    <message>
        <source>De&amp;tails</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>&amp;Explore</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>&amp;Copy Filename to Clipboard</source>
        <translation>Dateinamen &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Add Recordings to List</source>
        <translation>Zur Liste &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add &amp;File to List</source>
        <translation>&amp;Datei zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Add F&amp;older to List</source>
        <translation>&amp;Ordner zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>Aus der Liste &amp;entfernen</translation>
    </message>
    <message>
        <source>Clea&amp;r List</source>
        <translation>Liste lee&amp;ren</translation>
    </message>
    <message>
        <source>&amp;Load List</source>
        <translation>Liste &amp;laden</translation>
    </message>
    <message>
        <source>Sa&amp;ve List</source>
        <translation>Liste s&amp;peichern</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>Alle aus&amp;wählen</translation>
    </message>
    <message>
        <source>Rec&amp;ording</source>
        <translation>A&amp;ufnahme</translation>
    </message>
    <message>
        <source>&amp;Start Manual Recording</source>
        <translation>&amp;Manuelle Aufnahme starten</translation>
    </message>
    <message>
        <source>&amp;Quick Start</source>
        <translation>&amp;Schnellstart</translation>
    </message>
    <message>
        <source>S&amp;top Current Recording</source>
        <translation>Laufende Aufnahme &amp;beenden</translation>
    </message>
    <message>
        <source>Pa&amp;use Recording</source>
        <translation>Aufnahme &amp;unterbrechen</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>&amp;Mixer</translation>
    </message>
    <message>
        <source>Mixer Pro&amp;files</source>
        <translation>Mixer&amp;profile</translation>
    </message>
    <message>
        <source>&amp;Play Most Recent Recording</source>
        <translation>&amp;Letzte Aufnahme abspielen</translation>
    </message>
    <message>
        <source>&amp;Advanced</source>
        <translation>&amp;Erweitert</translation>
    </message>
    <message>
        <source>&amp;Compact Database</source>
        <translation>Datenbank &amp;komprimieren</translation>
    </message>
    <message>
        <source>&amp;Restore Original Database</source>
        <translation>&amp;Ursprüngliche Datenbank wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>Hilfe &amp;durchsuchen …</translation>
    </message>
    <message>
        <source>Larkmoor Systems &amp;Home Page</source>
        <translation>&amp;Website von Larkmoor Systems</translation>
    </message>
    <message>
        <source>&amp;About Nightreel 2000</source>
        <translation>Ü&amp;ber Nightreel 2000</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Hauptleiste</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Start Manual Record</source>
        <translation>Manuelle Aufnahme starten</translation>
    </message>
    <message>
        <source>Play Most Recent Recording</source>
        <translation>Letzte Aufnahme abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mixer</translation>
    </message>
    <message>
        <source>Disk Status</source>
        <translation>Datenträgerstatus</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Error Has Occurred! Please check the log.</source>
        <translation>Ein Fehler ist aufgetreten! Bitte prüfen Sie das Protokoll.</translation>
    </message>
    <message>
        <source>Add New Program</source>
        <translation>Neue Sendung hinzufügen</translation>
    </message>
    <message>
        <source>Edit Program</source>
        <translation>Sendung bearbeiten</translation>
    </message>
    <message>
        <source>Remove Programs</source>
        <translation>Sendungen entfernen</translation>
    </message>
    <message>
        <source>Clone Program</source>
        <translation>Sendung duplizieren</translation>
    </message>
    <message>
        <source>Enable/Disable Programs</source>
        <translation>Sendungen aktivieren/deaktivieren</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Delete from Disk</source>
        <translation>Vom Datenträger löschen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Add Recordings to List</source>
        <translation>Aufnahmen zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Load List</source>
        <translation>Liste laden</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Liste speichern</translation>
    </message>
    <message>
        <source>Nightreel is Currently Stopped</source>
        <translation>Nightreel ist derzeit angehalten</translation>
    </message>
    <message>
        <source>Disk Percent Full</source>
        <translation>Belegung des Datenträgers in Prozent</translation>
    </message>
    <message>
        <source>Today&apos;s Date</source>
        <translation>Heutiges Datum</translation>
    </message>
    <message>
        <source>Current Time</source>
        <translation>Aktuelle Uhrzeit</translation>
    </message>
</context>
<context>
    <name>frmManualRecord</name>
    <message>
        <source>YY&amp;MMDD_hhmmss</source>
        <translation>YY&amp;MMDD_hhmmss</translation>
    </message>
    <message>
        <source>DD&amp;MMYY_hhmmss</source>
        <translation>DD&amp;MMYY_hhmmss</translation>
    </message>
    <message>
        <source>&amp;MMDDYY_hhmmss</source>
        <translation>&amp;MMDDYY_hhmmss</translation>
    </message>
    <message>
        <source>Manual Record</source>
        <translation>Manuelle Aufnahme</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Modi&amp;fy</source>
        <translation>Än&amp;dern …</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Recording Format</source>
        <translation>Aufnahmeformat</translation>
    </message>
    <message>
        <source>Disk Storage:</source>
        <translation>Speicherbedarf:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Press OK to begin Recording.</source>
        <translation>Klicken Sie auf OK, um die Aufnahme zu beginnen.</translation>
    </message>
    <message>
        <source> Mbytes</source>
        <translation> MByte</translation>
    </message>
    <message>
        <source> Kbytes</source>
        <translation> KByte</translation>
    </message>
    <message>
        <source>Invalid Filename</source>
        <translation>Ungültiger Dateiname</translation>
    </message>
    <message>
        <source>The filename cannot contain any of the following characters:
\ / : * ? &quot; &lt; &gt; | </source>
        <translation>Der Dateiname darf keines der folgenden Zeichen enthalten:
\ / : * ? &quot; &lt; &gt; | </translation>
    </message>
    <message>
        <source>Recording already in progress</source>
        <translation>Aufnahme läuft bereits</translation>
    </message>
    <message>
        <source>The manual recording request will not be processed since recording is already in progress.</source>
        <translation>Die manuelle Aufnahme wird nicht ausgeführt, weil bereits eine Aufnahme läuft.</translation>
    </message>
    <message>
        <source>Program description required</source>
        <translation>Sendungsbeschreibung erforderlich</translation>
    </message>
    <message>
        <source>Please enter a program description.</source>
        <translation>Bitte geben Sie eine Beschreibung der Sendung ein.</translation>
    </message>
    <message>
        <source>Invalid stream address</source>
        <translation>Ungültige Streamadresse</translation>
    </message>
    <message>
        <source>Long Recording Confirmation</source>
        <translation>Lange Aufnahme bestätigen</translation>
    </message>
    <message>
        <source>A recording longer than </source>
        <translation>Es ist eine Aufnahme von mehr als </translation>
    </message>
    <message>
        <source> hours is programmed.  Record? </source>
        <translation> Stunden programmiert. Aufnehmen? </translation>
    </message>
</context>
<context>
    <name>frmMixerProfiles</name>
    <message>
        <source>A&amp;ctivate</source>
        <translation>&amp;Aktivieren</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Mixer Profiles</source>
        <translation>Mixerprofile</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Activate mixer profile</source>
        <translation>Mixerprofil aktivieren</translation>
    </message>
    <message>
        <source>The sound server&apos;s mixer settings will be set according to the selected mixer profile. Proceed?</source>
        <translation>Die Mixereinstellungen des Soundservers werden nach dem ausgewählten Mixerprofil gesetzt. Fortfahren?</translation>
    </message>
    <message>
        <source>Remove mixer profile</source>
        <translation>Mixerprofil entfernen</translation>
    </message>
    <message>
        <source>The selected mixer profile will be permanently removed. Proceed?</source>
        <translation>Das ausgewählte Mixerprofil wird endgültig entfernt. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>frmMp3RecordingFormatInfo</name>
    <message>
        <source>Selecting MP3 Recording Format</source>
        <translation>MP3-Aufnahmeformat auswählen</translation>
    </message>
    <message>
        <source>To enable MP3 recording, follow the steps below:</source>
        <translation>So ermöglichen Sie MP3-Aufnahmen:</translation>
    </message>
    <message>
        <source>1) Click on the </source>
        <translation>1) Klicken Sie die Schaltfläche </translation>
    </message>
    <message>
        <source>&quot;Select from all recording formats&quot;</source>
        <translation>„Aus allen Aufnahmeformaten auswählen“</translation>
    </message>
    <message>
        <source> button</source>
        <translation> an</translation>
    </message>
    <message>
        <source>2) Select the </source>
        <translation>2) Wählen Sie das Aufnahmeformat </translation>
    </message>
    <message>
        <source>&quot;MPEG Layer-3&quot;</source>
        <translation>„MPEG Layer-3“</translation>
    </message>
    <message>
        <source> recording format.  If this recording format does not show up on the list, install the MP3 encoder library (package libmp3lame0) and start Nightreel 2000 again.</source>
        <translation>. Steht dieses Aufnahmeformat nicht in der Liste, installieren Sie die MP3-Encoder-Bibliothek (Paket libmp3lame0) und starten Sie Nightreel 2000 neu.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Options</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Default Recording &amp;Folder</source>
        <translation>Standard-Aufnahmeor&amp;dner</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>Ä&amp;ndern …</translation>
    </message>
    <message>
        <source>Default Recording Format</source>
        <translation>Standard-Aufnahmeformat</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>An&amp;passen …</translation>
    </message>
    <message>
        <source>Default Manual Recording Duration</source>
        <translation>Standarddauer manueller Aufnahmen</translation>
    </message>
    <message>
        <source>Co&amp;nfirm when recordings longer than</source>
        <translation>&amp;Bestätigen, wenn Aufnahmen länger als</translation>
    </message>
    <message>
        <source>hours are programmed</source>
        <translation>Stunden programmiert werden</translation>
    </message>
    <message>
        <source>Confirm &amp;stop of manual recordings</source>
        <translation>Beenden manueller Aufnahmen be&amp;stätigen</translation>
    </message>
    <message>
        <source>Start &amp;programmed recordings</source>
        <translation>Programmierte Aufnahmen &amp;um</translation>
    </message>
    <message>
        <source>seconds early and end them as many seconds late</source>
        <translation>Sekunden früher beginnen und ebenso viel später beenden</translation>
    </message>
    <message>
        <source>WAV files</source>
        <translation>WAV-Dateien</translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation>MP3-Dateien</translation>
    </message>
    <message>
        <source>C&amp;ustomize play forward/reverse buttons</source>
        <translation>Vor- und Rücklauftasten an&amp;passen</translation>
    </message>
    <message>
        <source>Button %1</source>
        <translation>Taste %1</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>&amp;Show actual record time in player</source>
        <translation>Tatsächliche Aufnahmezeit im Player an&amp;zeigen</translation>
    </message>
    <message>
        <source>Run Nightreel 2000 when the desktop &amp;starts</source>
        <translation>Nightreel 2000 beim &amp;Start der Arbeitsumgebung ausführen</translation>
    </message>
    <message>
        <source>Desktop Startup Mode</source>
        <translation>Startmodus</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>&amp;Hidden</source>
        <translation>&amp;Verborgen</translation>
    </message>
    <message>
        <source>Sho&amp;w Splash Screen</source>
        <translation>&amp;Begrüßungsbildschirm anzeigen</translation>
    </message>
    <message>
        <source>Warn when disk has</source>
        <translation>Warnen, wenn auf dem Datenträger nur noch</translation>
    </message>
    <message>
        <source>Megabytes left</source>
        <translation>Megabyte frei sind</translation>
    </message>
    <message>
        <source>Stop recording when disk has</source>
        <translation>Aufnahme beenden, wenn nur noch</translation>
    </message>
    <message>
        <source>R&amp;emove recordings older than</source>
        <translation>Aufnahmen &amp;entfernen, die älter sind als</translation>
    </message>
    <message>
        <source>Removes only recordings that are in the recordings list, with their CUE sheets, and takes them off the list. Other files in the recording folder are never removed.</source>
        <translation>Entfernt nur Aufnahmen, die in der Aufnahmeliste stehen, samt ihren CUE-Dateien, und nimmt sie von der Liste. Andere Dateien im Aufnahmeordner werden nie entfernt.</translation>
    </message>
    <message>
        <source>Per&amp;form purging daily at</source>
        <translation>Täglich &amp;bereinigen um</translation>
    </message>
    <message>
        <source>NOTE: Purging is done only in the current default recording folder.</source>
        <translation>HINWEIS: Bereinigt wird nur im aktuellen Standard-Aufnahmeordner.</translation>
    </message>
    <message>
        <source>Allow &amp;joystick activation</source>
        <translation>Aktivierung per &amp;Joystick erlauben</translation>
    </message>
    <message>
        <source>A&amp;utomatically remove expired programs</source>
        <translation>Abgelaufene Sendungen a&amp;utomatisch entfernen</translation>
    </message>
    <message>
        <source>Show elapsed recording time in the desktop task &amp;bar</source>
        <translation>Verstrichene Aufnahmezeit in der &amp;Taskleiste anzeigen</translation>
    </message>
    <message>
        <source>&amp;Keep the computer awake for recordings</source>
        <translation>Computer für Aufnahmen wach &amp;halten</translation>
    </message>
    <message>
        <source>&amp;Warn when a recording is silent</source>
        <translation>Bei stummer Aufnahme &amp;warnen</translation>
    </message>
    <message>
        <source>Show desktop &amp;notifications</source>
        <translation>Desktop-Be&amp;nachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>A failed recording, a silent input, a full disk or a failed conversion is also announced on the desktop.</source>
        <translation>Eine fehlgeschlagene Aufnahme, ein stummer Eingang, ein voller Datenträger oder eine fehlgeschlagene Umwandlung wird auch in der Arbeitsumgebung gemeldet.</translation>
    </message>
    <message>
        <source>Default recording file name format:</source>
        <translation>Standardformat des Aufnahme-Dateinamens:</translation>
    </message>
    <message>
        <source>&amp;Mixer Control</source>
        <translation>&amp;Mixer-Steuerung</translation>
    </message>
    <message>
        <source>Se&amp;lect...</source>
        <translation>Wäh&amp;len …</translation>
    </message>
    <message>
        <source>&amp;default</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keiner)</translation>
    </message>
    <message>
        <source>Default Mixer</source>
        <translation>Standard-Mixer</translation>
    </message>
    <message>
        <source>Invalid option</source>
        <translation>Ungültige Einstellung</translation>
    </message>
    <message>
        <source>Recordings directory does not exist or could not be created</source>
        <translation>Das Aufnahmeverzeichnis existiert nicht oder konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>The mixer control will be changed to the sound server&apos;s volume control. Proceed?</source>
        <translation>Als Mixer-Steuerung wird die Lautstärkeregelung des Soundservers eingestellt. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>frmPlayPanel</name>
    <message>
        <source>Invalid device id.</source>
        <translation>Ungültige Geräte-ID.</translation>
    </message>
    <message>
        <source>The device is not open or is not known.</source>
        <translation>Das Gerät ist nicht geöffnet oder unbekannt.</translation>
    </message>
    <message>
        <source>Error load media device driver.</source>
        <translation>Fehler beim Laden des Mediengerätetreibers.</translation>
    </message>
    <message>
        <source>Action not available for this device.</source>
        <translation>Aktion für dieses Gerät nicht verfügbar.</translation>
    </message>
    <message>
        <source>Invalid filename.</source>
        <translation>Ungültiger Dateiname.</translation>
    </message>
    <message>
        <source>Play Panel Form Load Error (</source>
        <translation>Fehler beim Laden des Wiedergabefensters (</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Error in Loading Play Panel</source>
        <translation>Fehler beim Laden des Wiedergabefensters</translation>
    </message>
</context>
<context>
    <name>frmPlayPanelMP</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Go to Beginning</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Go to End</source>
        <translation>Zum Ende</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Playback at a faster or slower rate</source>
        <translation>Schneller oder langsamer abspielen</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
</context>
<context>
    <name>frmProgram</name>
    <message>
        <source>Program</source>
        <translation>Sendung</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>All&amp;gemein</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Da&amp;tei</translation>
    </message>
    <message>
        <source>&amp;External App</source>
        <translation>&amp;Externes Programm</translation>
    </message>
    <message>
        <source>&amp;Internet</source>
        <translation>I&amp;nternet</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>Mi&amp;xer</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Ena&amp;bled</source>
        <translation>Akti&amp;viert</translation>
    </message>
    <message>
        <source>Fre&amp;quency</source>
        <translation>&amp;Häufigkeit</translation>
    </message>
    <message>
        <source>One &amp;Time</source>
        <translation>Einma&amp;lig</translation>
    </message>
    <message>
        <source>Dai&amp;ly</source>
        <translation>Tägli&amp;ch</translation>
    </message>
    <message>
        <source>&amp;Sun</source>
        <translation>&amp;So</translation>
    </message>
    <message>
        <source>Mo&amp;n</source>
        <translation>&amp;Mo</translation>
    </message>
    <message>
        <source>T&amp;ue</source>
        <translation>&amp;Di</translation>
    </message>
    <message>
        <source>&amp;Wed</source>
        <translation>M&amp;i</translation>
    </message>
    <message>
        <source>T&amp;hu</source>
        <translation>D&amp;o</translation>
    </message>
    <message>
        <source>F&amp;ri</source>
        <translation>&amp;Fr</translation>
    </message>
    <message>
        <source>S&amp;at</source>
        <translation>S&amp;a</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Endzeit</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Dauer:</translation>
    </message>
    <message>
        <source>Disk Storage: </source>
        <translation>Speicherbedarf: </translation>
    </message>
    <message>
        <source>Recording Format</source>
        <translation>Aufnahmeformat</translation>
    </message>
    <message>
        <source>Modif&amp;y</source>
        <translation>&amp;Ändern …</translation>
    </message>
    <message>
        <source>&amp;Prefix</source>
        <translation>&amp;Präfix</translation>
    </message>
    <message>
        <source>&amp;Suffix</source>
        <translation>&amp;Suffix</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Launch external program &amp;prior to recording</source>
        <translation>Externes Programm &amp;vor der Aufnahme starten</translation>
    </message>
    <message>
        <source>Number of seconds to launch program p&amp;rior to recording</source>
        <translation>&amp;Sekunden vor der Aufnahme, zu denen das Programm startet</translation>
    </message>
    <message>
        <source>Launch external program when recording comp&amp;letes</source>
        <translation>Externes Programm nach der Aufnahme sta&amp;rten</translation>
    </message>
    <message>
        <source>Launch only if &amp;successful recording</source>
        <translation>Nur bei erfolgreicher A&amp;ufnahme starten</translation>
    </message>
    <message>
        <source>Launch Internet lin&amp;k prior to recording</source>
        <translation>Internet&amp;link vor der Aufnahme öffnen</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>Te&amp;sten</translation>
    </message>
    <message>
        <source>Number of seconds to launch Internet link prior to recording</source>
        <translation>Sekunden vor der Aufnahme, zu denen der Internetlink geöffnet wird</translation>
    </message>
    <message>
        <source>Close streaming player when done recording</source>
        <translation>Streaming-Player nach der Aufnahme schließen</translation>
    </message>
    <message>
        <source>&amp;Let Nightreel attempt to determine the streaming player</source>
        <translation>Nightreel den Streaming-Player er&amp;mitteln lassen</translation>
    </message>
    <message>
        <source>Enter &amp;Window title (or part of) </source>
        <translation>&amp;Fenstertitel (oder einen Teil davon) eingeben </translation>
    </message>
    <message>
        <source>Do &amp;not close streaming player</source>
        <translation>Streaming-Player n&amp;icht schließen</translation>
    </message>
    <message>
        <source>&amp;Hang up dial up connection when done recording</source>
        <translation>&amp;Wählverbindung nach der Aufnahme trennen</translation>
    </message>
    <message>
        <source>Activate mixer profile prior to recording</source>
        <translation>Mixerprofil vor der Aufnahme aktivieren</translation>
    </message>
    <message>
        <source>Activate mixer profile when recording completes</source>
        <translation>Mixerprofil nach der Aufnahme aktivieren</translation>
    </message>
    <message>
        <source>Mixer profiles can be created in the Tools menu.</source>
        <translation>Mixerprofile lassen sich im Menü Extras anlegen.</translation>
    </message>
    <message>
        <source>YYMM&amp;DD_hhmmss</source>
        <translation>YYMM&amp;DD_hhmmss</translation>
    </message>
    <message>
        <source>&amp;DDMMYY_hhmmss</source>
        <translation>&amp;DDMMYY_hhmmss</translation>
    </message>
    <message>
        <source>MM&amp;DDYY_hhmmss</source>
        <translation>MM&amp;DDYY_hhmmss</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Info...</source>
        <translation>Info …</translation>
    </message>
</context>
<context>
    <name>frmRecordFormat</name>
    <message>
        <source>Select Recording Format</source>
        <translation>Aufnahmeformat auswählen</translation>
    </message>
    <message>
        <source>Format Selected</source>
        <translation>Ausgewähltes Format</translation>
    </message>
    <message>
        <source>&amp;Use PCM format </source>
        <translation>&amp;PCM-Format verwenden </translation>
    </message>
    <message>
        <source>&amp;Standard PCM Format </source>
        <translation>Standard-PCM-&amp;Format </translation>
    </message>
    <message>
        <source>&amp;Phone Quality</source>
        <translation>&amp;Telefonqualität</translation>
    </message>
    <message>
        <source>&amp;Radio Quality</source>
        <translation>&amp;Radioqualität</translation>
    </message>
    <message>
        <source>C&amp;D Quality</source>
        <translation>&amp;CD-Qualität</translation>
    </message>
    <message>
        <source>C&amp;hannels</source>
        <translation>&amp;Kanäle</translation>
    </message>
    <message>
        <source>&amp;Mono</source>
        <translation>&amp;Mono</translation>
    </message>
    <message>
        <source> S&amp;tereo</source>
        <translation> &amp;Stereo</translation>
    </message>
    <message>
        <source>R&amp;esolution</source>
        <translation>Auf&amp;lösung</translation>
    </message>
    <message>
        <source>&amp;8 bit</source>
        <translation>&amp;8 Bit</translation>
    </message>
    <message>
        <source>&amp;16  bit</source>
        <translation>&amp;16 Bit</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Co&amp;nvert to the selected MP3 format after recording in the appropriate PCM format.
(Recommended for slow computers)</source>
        <translation>Nach der Aufnahme im passenden PCM-Format in das gewählte MP3-Format &amp;umwandeln.
(Empfohlen für langsame Computer)</translation>
    </message>
    <message>
        <source>Sa&amp;ve with .MP3 file extension</source>
        <translation>Mit der Dateiendung .MP3 speic&amp;hern</translation>
    </message>
    <message>
        <source>Selecting MP3 Recording Format</source>
        <translation>MP3-Aufnahmeformat auswählen</translation>
    </message>
    <message>
        <source>NOTE: It is strongly recommended to perform a short test recording if no recording has been made with this format before.</source>
        <translation>HINWEIS: Es wird dringend empfohlen, eine kurze Testaufnahme zu machen, wenn mit diesem Format noch nicht aufgenommen wurde.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Select from &amp;all
recording formats</source>
        <translation>Aus allen Aufnahme-
formaten aus&amp;wählen</translation>
    </message>
    <message>
        <source>MP3</source>
        <translation>MP3</translation>
    </message>
</context>
<context>
    <name>frmRecordingDetails</name>
    <message>
        <source>Recording Details</source>
        <translation>Aufnahmedetails</translation>
    </message>
    <message>
        <source>Start Time:</source>
        <translation>Startzeit:</translation>
    </message>
    <message>
        <source>End Time:</source>
        <translation>Endzeit:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Dauer:</translation>
    </message>
    <message>
        <source>Data Size:</source>
        <translation>Datenmenge:</translation>
    </message>
    <message>
        <source> Mbytes</source>
        <translation> MByte</translation>
    </message>
    <message>
        <source>Compression Method:</source>
        <translation>Kompressionsverfahren:</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>frmSaveList</name>
    <message>
        <source>Save Recordings List</source>
        <translation>Aufnahmeliste speichern</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Enter list name</source>
        <translation>Namen der Liste eingeben</translation>
    </message>
    <message>
        <source>No recordings in current list</source>
        <translation>Die aktuelle Liste enthält keine Aufnahmen</translation>
    </message>
    <message>
        <source>Invalid list name</source>
        <translation>Ungültiger Listenname</translation>
    </message>
    <message>
        <source>The recordings list name cannot contain any of the following characters:<byte value="xd"/>
\ / : * ? &quot; &lt; &gt; | </source>
        <translation>Der Name der Aufnahmeliste darf keines der folgenden Zeichen enthalten:<byte value="xd"/>
\ / : * ? &quot; &lt; &gt; | </translation>
    </message>
    <message>
        <source>The recordings list name cannot be blank</source>
        <translation>Der Name der Aufnahmeliste darf nicht leer sein</translation>
    </message>
    <message>
        <source>Overwrite list</source>
        <translation>Liste überschreiben</translation>
    </message>
    <message>
        <source>Are you sure you want to overwrite existing recordings list with same name?</source>
        <translation>Möchten Sie die vorhandene Aufnahmeliste gleichen Namens wirklich überschreiben?</translation>
    </message>
</context>
<context>
    <name>frmSelectExistingRecordDirectory</name>
    <message>
        <source>Select disk drive and folder.</source>
        <translation>Datenträger und Ordner auswählen.</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Bitte warten …</translation>
    </message>
</context>
<context>
    <name>frmSelectRecordDirectory</name>
    <message>
        <source>Select Recording Folder</source>
        <translation>Aufnahmeordner auswählen</translation>
    </message>
    <message>
        <source>Enter or select recording directory.</source>
        <translation>Aufnahmeverzeichnis eingeben oder auswählen.</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Verzeichnisse</translation>
    </message>
    <message>
        <source>Invalid Recording Directory</source>
        <translation>Ungültiges Aufnahmeverzeichnis</translation>
    </message>
    <message>
        <source>A valid Recording folder is required.</source>
        <translation>Ein gültiger Aufnahmeordner ist erforderlich.</translation>
    </message>
    <message>
        <source> Reselect directory or cancel.</source>
        <translation> Wählen Sie ein anderes Verzeichnis oder brechen Sie ab.</translation>
    </message>
    <message>
        <source>Create Folder</source>
        <translation>Ordner anlegen</translation>
    </message>
    <message>
        <source>Folder </source>
        <translation>Der Ordner </translation>
    </message>
    <message>
        <source> does not exist.  Create it?</source>
        <translation> existiert nicht. Anlegen?</translation>
    </message>
    <message>
        <source>Can not create folder</source>
        <translation>Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Media may be full or read-only.</source>
        <translation>Der Datenträger ist vielleicht voll oder schreibgeschützt.</translation>
    </message>
    <message>
        <source> Reselect drive and directory.</source>
        <translation> Wählen Sie einen anderen Datenträger und Ordner.</translation>
    </message>
</context>
<context>
    <name>frmSysTray</name>
    <message>
        <source>&amp;System Tray</source>
        <translation>&amp;Systembereich</translation>
    </message>
    <message>
        <source>Restore &amp;Window</source>
        <translation>Fenster &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Disk Status</source>
        <translation>&amp;Datenträgerstatus</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>&amp;Stop Current Recording</source>
        <translation>Laufende Aufnahme &amp;stoppen</translation>
    </message>
    <message>
        <source>&amp;Pause Recording</source>
        <translation>Aufnahme &amp;unterbrechen</translation>
    </message>
    <message>
        <source>S&amp;uspend</source>
        <translation>&amp;Aussetzen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
</TS>
