<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Direkte</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Serie-
opptak</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Valg</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behold</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ta ny</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spill av</translation>
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
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Lim inn</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Last inn</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stillbilde</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Finner ikke noe kamera.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Finner ikke noen mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Finner verken kamera eller mikrofon.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet er ikke tilgjengelig. Kontroller at det er riktig tilkoblet. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Lagringen mislyktes.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Filer lastes inn. Vent litt...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Filene er lastet inn.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Innlastingen mislyktes.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Last inn mappe</translation>
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
        <translation>Viser dette til neste tast eller berøring</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Til neste knapp</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Tilbake til forrige knapp</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Trykker på knappen</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Fra den ene til den neste på listen</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Velger på listen, eller velger bort igjen</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Direktebilde større, mindre</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Hele direktebildet</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Dreier direktebildet en kvart omgang</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Musehjul</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Større eller mindre, rundt pekeren</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>To fingre</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Større eller mindre, mellom fingrene</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Dra</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Flytter det forstørrede direktebildet</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Kopierer det som vises</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Tilbake fra et spørsmål eller en melding</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Avslutter programmet</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Mellomrom</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>DIREKTE</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Kameraet åpnes. Vent litt...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Støttes ikke</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet og mikrofonen er ikke tilgjengelige. Kontroller at de er riktig tilkoblet. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet er ikke tilgjengelig. Kontroller at det er riktig tilkoblet. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofonen er ikke tilgjengelig. Kontroller at den er riktig tilkoblet.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Direktebilde</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 sekunder til bildet  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> sekunder til bildet</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Tar opp</translation>
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
        <translation>Velg en enhet:</translation>
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
        <translation>Vent litt..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Mislyktes.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Limer inn. Vent litt... 
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
        <translation>Vil du lagre bildene og filmene?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nei</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Selvutløser:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Serieopptak:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>bilder</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Bekreft bildet som er tatt:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Oppløsning:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Lagringssted:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Bruk standardmappen</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Bruk en annen mappe</translation>
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
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Selvutløser</translation>
    </message>
    <message>
        <source>second</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Serieopptak</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>bilder</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Bekreft bildet som er tatt</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Oppløsning</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Bruk standardmappen</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Bruk en annen mappe</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Angi et lagringssted.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Banen er ugyldig.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Lagringssted</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Du kan velge høyst 9.</translation>
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
        <translation>Forstørr</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Tilbake</translation>
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
        <translation>Det er for lite ledig plass på disken.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Opptaket avbrytes. Frigjør plass. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Ingenting kan tas opp så lenge denne mappen er en lenke eller ikke bare er din:
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
        <translation>Vis, fotografer og film det som ligger under kameraet</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Søk i:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Mappe:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Velg</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
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
        <translation>Opprett ny mappe</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Fant ikke mappen.
Kontroller at navnet på mappen er riktig.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Datamaskin</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
