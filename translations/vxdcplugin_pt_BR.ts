<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Ao vivo</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Captura
contínua</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Manter</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Exibir</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Vídeo /
    Foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Vídeo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carregar</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Imagem estática</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nenhuma câmera encontrada.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nenhum microfone encontrado.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nenhuma câmera e nenhum microfone encontrados.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A câmera não está disponível. Verifique se ela está conectada corretamente. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Não foi possível salvar.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Carregando arquivos. Aguarde...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Os arquivos foram carregados.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Não foi possível carregar.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Carregar pasta</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Mostra isto até a próxima tecla ou toque</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Para o próximo botão</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>De volta ao botão anterior</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Pressiona o botão</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>De um para o outro na lista</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Escolhe na lista, ou desfaz a escolha</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Imagem ao vivo maior, menor</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>A imagem ao vivo inteira</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Gira a imagem ao vivo um quarto de volta</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Roda do mouse</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Maior ou menor, em torno do ponteiro</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Dois dedos</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Maior ou menor, entre os dedos</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Arrastar</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Move a imagem ao vivo ampliada</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Copia o que está na tela</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Volta de uma pergunta ou mensagem</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Fecha o programa</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Barra de espaço</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>AO VIVO</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Abrindo a câmera. Aguarde...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Não compatível</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A câmera e o microfone não estão disponíveis. Verifique se estão conectados corretamente. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A câmera não está disponível. Verifique se ela está conectada corretamente. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>O microfone não está disponível. Verifique se ele está conectado corretamente.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Imagem ao vivo</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 s até a captura  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s até a captura</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Gravando</translation>
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
        <translation>Selecione um dispositivo:</translation>
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
        <translation>Aguarde..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Falha.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Colando. Aguarde... 
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
        <translation>Deseja salvar as fotos e os vídeos?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Temporizador:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Captura contínua:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>imagens</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Confirmar a imagem capturada:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolução:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Pasta de destino:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Usar a pasta padrão</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Usar outra pasta</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Temporizador</translation>
    </message>
    <message>
        <source>second</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Captura contínua</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>imagens</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Confirmar a imagem capturada</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Usar a pasta padrão</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Usar outra pasta</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Especifique a pasta de destino.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>O caminho especificado não é válido.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Pasta de destino</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Só é possível selecionar até 9 itens.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
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
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
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
        <translation>O espaço em disco é insuficiente.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>A captura foi interrompida. Libere espaço. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Não é possível capturar nada enquanto esta pasta for um link ou não for somente sua:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Câmera de documentos</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Mostrar, fotografar e filmar o que está sob a câmera</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Procurar em:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Escolher</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Pasta acima</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Criar nova pasta</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
A pasta não foi encontrada.
Verifique se o nome da pasta está correto.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
