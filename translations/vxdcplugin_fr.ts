<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Prise
en rafale</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Refaire</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Vidéo /
    Photo</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Photo /
    Vidéo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Image fixe</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Aucune caméra trouvée.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Aucun microphone trouvé.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Aucune caméra ni microphone trouvés.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La caméra n’est pas disponible. Vérifiez qu’elle est correctement branchée. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>L’enregistrement a échoué.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Chargement en cours. Veuillez patienter...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Les fichiers ont été chargés.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Le chargement a échoué.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Charger un dossier</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Affiche ceci jusqu'au prochain appui</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Au bouton suivant</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Au bouton précédent</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Appuie sur le bouton</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>De l'un à l'autre dans la liste</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Choisit dans la liste, ou retire du choix</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Image en direct plus grande, plus petite</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Toute l'image en direct</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Tourne l'image en direct d'un quart de tour</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Molette de la souris</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Plus grande ou plus petite, autour du pointeur</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Deux doigts</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Plus grande ou plus petite, entre les doigts</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Glisser</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Déplace l'image en direct agrandie</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Copie ce qui est affiché</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Quitte une question ou un message</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Quitte le programme</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Barre d'espace</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>DIRECT</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Ouverture de la caméra. Veuillez patienter...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Non pris en charge</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La caméra et le microphone ne sont pas disponibles. Vérifiez qu’ils sont correctement branchés. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La caméra n’est pas disponible. Vérifiez qu’elle est correctement branchée. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Le microphone n’est pas disponible. Vérifiez qu’il est correctement branché.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Image en direct</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 secondes avant la prise  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> secondes avant la prise</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement en cours</translation>
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
        <translation>Choisissez un appareil :</translation>
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
        <translation>Veuillez patienter..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Échec.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Collage en cours. Veuillez patienter... 
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
        <translation>Voulez-vous enregistrer les photos et vidéos ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Retardateur :</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Prise en rafale :</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>images</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Confirmer l’image prise :</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Résolution :</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Emplacement :</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Emplacement par défaut</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Autre emplacement</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Retardateur</translation>
    </message>
    <message>
        <source>second</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Prise en rafale</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>images</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Confirmer l’image prise</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Emplacement par défaut</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Autre emplacement</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Indiquez un emplacement.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Le chemin indiqué n’est pas valide.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Emplacement</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Vous pouvez en choisir 9 au maximum.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vidéo</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Vidéo</translation>
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
        <translation>L’espace disque est insuffisant.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>La prise de vue est interrompue. Libérez de l’espace. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Rien ne peut être enregistré tant que ce dossier est un lien ou n’est pas à vous seul :
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Visualiseur</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Montrer, photographier et filmer ce qui se trouve sous la caméra</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Chercher dans :</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Dossier :</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Créer un dossier</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Le dossier est introuvable.
Veuillez vérifier que son nom est correct.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
