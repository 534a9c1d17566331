<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Serie-
optagelse</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behold</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tag igen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspil</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Indsæt</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Indlæs</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stillbillede</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Intet kamera fundet.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Ingen mikrofon fundet.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Hverken kamera eller mikrofon fundet.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet er ikke tilgængeligt. Kontrollér, at det er tilsluttet korrekt. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Det lykkedes ikke at gemme.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Filer indlæses. Vent venligst...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Filerne er indlæst.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Det lykkedes ikke at indlæse.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Indlæs mappe</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Taster</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Viser dette indtil næste tast eller berøring</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Til næste knap</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Tilbage til forrige knap</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Trykker på knappen</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Fra den ene til den næste på listen</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Vælger på listen eller fravælger igen</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Livebillede større, mindre</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Hele livebilledet</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Drejer livebilledet en kvart omgang</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Musehjul</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Større eller mindre omkring markøren</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>To fingre</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Større eller mindre mellem fingrene</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Træk</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Flytter det forstørrede livebillede</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Kopierer det, der vises</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Tilbage fra et spørgsmål eller en besked</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Afslutter programmet</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Mellemrum</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Kameraet åbnes. Vent venligst...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Understøttes ikke</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet og mikrofonen er ikke tilgængelige. Kontrollér, at de er tilsluttet korrekt. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet er ikke tilgængeligt. Kontrollér, at det er tilsluttet korrekt. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofonen er ikke tilgængelig. Kontrollér, at den er tilsluttet korrekt.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Livebillede</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 s til billedet  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s til billedet</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Optager</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>Vælg en enhed:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>CWaiteMsgDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>Vent venligst..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Mislykkedes.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Indsætter. Vent venligst... 
</translation>
    </message>
</context>
<context>
    <name>SaveConfirmDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Do you want to save the Photo / Movie data?</source>
        <translation>Vil du gemme billederne og filmene?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Selvudløser:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Serieoptagelse:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>billeder</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Bekræft det tagne billede:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Opløsning:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Placering:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Brug standardmappen</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Brug en anden mappe</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Selvudløser</translation>
    </message>
    <message>
        <source>second</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Serieoptagelse</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>billeder</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Bekræft det tagne billede</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Opløsning</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Brug standardmappen</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Brug en anden mappe</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Angiv en placering.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Den angivne sti er ugyldig.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Placering</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Du kan højst vælge 9.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Forstør</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Tilbage</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
</context>
<context>
    <name>WebcamUtil</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Der er for lidt diskplads.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Optagelsen stoppes. Frigør plads. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Der kan ikke optages noget, så længe denne mappe er et link eller ikke kun er din:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Dokumentkamera</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Vis, fotografér og film det, der ligger under kameraet</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Søg i:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Mappe:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Vælg</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Frem</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Overordnet mappe</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Opret ny mappe</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Mappen blev ikke fundet.
Kontroller, at mappens navn er rigtigt.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
