<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
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
opname</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lijst</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Tonen</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Video</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Plakken</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stilstaand beeld</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Geen camera gevonden.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Geen microfoon gevonden.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Geen camera en geen microfoon gevonden.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>De camera is niet beschikbaar. Controleer of deze goed is aangesloten. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Opslaan is mislukt.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Bestanden worden geladen. Even geduld...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>De bestanden zijn geladen.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Laden is mislukt.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Map laden</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Toetsen</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Toont dit tot de volgende toets of aanraking</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Naar de volgende knop</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Terug naar de vorige knop</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Drukt op de knop</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>In de lijst van de ene naar de volgende</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Kiest in de lijst, of laat weer weg</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Livebeeld groter, kleiner</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Het hele livebeeld</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Draait het livebeeld een kwartslag</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Muiswiel</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Groter of kleiner, rond de aanwijzer</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Twee vingers</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Groter of kleiner, tussen de vingers</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Slepen</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Verschuift het vergrote livebeeld</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Kopieert wat te zien is</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Terug uit een vraag of melding</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Sluit het programma</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Spatiebalk</translation>
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
        <translation>De camera wordt geopend. Even geduld...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Niet ondersteund</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>De camera en de microfoon zijn niet beschikbaar. Controleer of ze goed zijn aangesloten. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>De camera is niet beschikbaar. Controleer of deze goed is aangesloten. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>De microfoon is niet beschikbaar. Controleer of deze goed is aangesloten.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Livebeeld</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 s tot de opname  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s tot de opname</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Bezig met opnemen</translation>
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
        <translation>Kies een apparaat:</translation>
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
        <translation>Even geduld..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Mislukt.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Bezig met plakken. Even geduld... 
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
        <translation>Wilt u de foto’s en video’s opslaan?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Zelfontspanner:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>seconden</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Serieopname:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>foto’s</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Gemaakte foto bevestigen:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolutie:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Opslaglocatie:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Standaardmap gebruiken</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Andere map gebruiken</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Zelfontspanner</translation>
    </message>
    <message>
        <source>second</source>
        <translation>seconden</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Serieopname</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>foto’s</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Gemaakte foto bevestigen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Standaardmap gebruiken</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Andere map gebruiken</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Geef een opslaglocatie op.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Het opgegeven pad is ongeldig.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Opslaglocatie</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>U kunt er maximaal 9 selecteren.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
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
        <translation>Vergroten</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Terug</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
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
        <translation>Er is te weinig schijfruimte.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>De opname wordt gestopt. Maak schijfruimte vrij. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Er kan niets worden opgenomen zolang deze map een koppeling is of niet van u alleen is:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Documentcamera</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Tonen, fotograferen en filmen wat onder de camera ligt</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Zoeken in:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Map:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Kiezen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vooruit</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Bovenliggende map</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Nieuwe map maken</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
De map is niet gevonden.
Controleer of de naam van de map klopt.</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
