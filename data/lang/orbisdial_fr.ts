<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DialupPlugin</name>
    <message>
        <source>IDS_DIALUP_PROMPT_TITLE</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PROMPT_TEXT</source>
        <translation>Nom d’utilisateur et mot de passe pour «&#xa0;%1&#xa0;»&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USER</source>
        <translation>Nom d’utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PASSWORD</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CONNECT</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_SETTINGS</source>
        <translation>Les paramètres de connexion ne sont pas chargés.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DEFAULT</source>
        <translation>Il n’y a pas de profil par défaut. Choisissez-en un dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_PROFILE</source>
        <translation>Il n’y a pas de profil «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCELLED</source>
        <translation>La connexion a été annulée.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_READY</source>
        <translation>Le modem n’est pas encore prêt. Attendez un instant et réessayez&#xa0;; si cela ne suffit pas, débranchez-le et rebranchez-le.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARRIER</source>
        <translation>Le réseau ne répond pas (pas de porteuse). Réessayez là où la réception est meilleure.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTHENTICATION_FAILED</source>
        <translation>Le réseau a refusé le nom d’utilisateur ou le mot de passe de «&#xa0;%1&#xa0;». Corrigez-les dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM</source>
        <translation>Il n’y a pas de modem. Branchez-en un.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_IN_USE</source>
        <translation>Le modem est utilisé par %1. Terminez d’abord cette connexion.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_SUBSCRIBED</source>
        <translation>La carte n’a pas de service de données pour «&#xa0;%1&#xa0;». Vérifiez le nom du point d’accès (APN) ou demandez à votre opérateur.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REFUSED</source>
        <translation>Le réseau a refusé «&#xa0;%1&#xa0;» sans dire pourquoi. Vérifiez le nom d’utilisateur, le mot de passe et le point d’accès (APN).</translation>
    </message>
    <message>
        <source>IDS_DIALUP_DROPPED</source>
        <translation>La connexion a été perdue. Reconnectez-vous.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LINK</source>
        <translation>La connexion n’a pas pu démarrer sur cet ordinateur. Réessayez&#xa0;; les détails en disent peut-être plus.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BUSY</source>
        <translation>Le numéro est occupé. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DIAL_TONE</source>
        <translation>Il n’y a pas de tonalité. Vérifiez l’antenne et la carte du modem.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_ANSWER</source>
        <translation>Le réseau n’a pas répondu à temps. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_APN_REFUSED</source>
        <translation>Le réseau refuse le nom du point d’accès (APN) de «&#xa0;%1&#xa0;». Corrigez-le dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_REGISTERED</source>
        <translation>Aucun réseau n’a été trouvé. Réessayez là où la réception est meilleure.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REGISTRATION_DENIED</source>
        <translation>Le réseau n’admet pas cette carte. Demandez à votre opérateur si elle est active.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARD</source>
        <translation>Il n’y a pas de carte SIM dans le modem. Insérez-en une.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LOCKED</source>
        <translation>La carte SIM est verrouillée. Saisissez son code PIN.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_CARD</source>
        <translation>Le modem n’accepte pas cette carte SIM. Utilisez une carte de l’opérateur du modem.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_PIN</source>
        <translation>Le code PIN est erroné. Saisissez le bon.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MODEM_GONE</source>
        <translation>Le modem a été retiré ou ne fonctionne plus. Rebranchez-le.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM_SERVICE</source>
        <translation>Le service des modems (ModemManager) n’est pas lancé ou ne répond pas. Relancez-le ou demandez à votre administrateur.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_NETWORK_SERVICE</source>
        <translation>Le service des connexions (NetworkManager) n’est pas lancé ou ne répond pas. Relancez-le ou demandez à votre administrateur.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_SUSPENDED</source>
        <translation>La connexion a pris fin parce que l’ordinateur s’est mis en veille. Reconnectez-vous.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_TAKEN</source>
        <translation>Un autre programme a pris le modem pour sa propre connexion. Terminez celle-ci et reconnectez-vous.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CREDENTIALS_MISSING</source>
        <translation>Le réseau demande un nom d’utilisateur et un mot de passe. Saisissez-les pour «&#xa0;%1&#xa0;» dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_ENDED_OUTSIDE</source>
        <translation>La connexion a été terminée en dehors de ce programme. Reconnectez-vous si besoin.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_HUNG_UP</source>
        <translation>La connexion a été terminée dans un autre programme d’OrbisDial.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STUCK</source>
        <translation>Le modem est resté bloqué dans un appel précédent. Débranchez-le, puis rebranchez-le.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_ALLOWED</source>
        <translation>Vous n’êtes pas autorisé à vous connecter sur cet ordinateur. Demandez la permission à votre administrateur.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_OTHER</source>
        <translation>La connexion avec «&#xa0;%1&#xa0;» a échoué. Les détails disent ce que l’on sait.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANNOT_HANG_UP</source>
        <translation>La connexion n’a pas pu être terminée. Réessayez.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_SUPPORTED</source>
        <translation>Le modem ou le réseau n’accepte pas de tels codes.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_REFUSED</source>
        <translation>Le réseau a refusé le code ou mis fin à la session.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NO_ANSWER</source>
        <translation>Le réseau n’a pas répondu.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_CANCELLED</source>
        <translation>La session a été annulée.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_ALLOWED</source>
        <translation>Vous n’êtes pas autorisé à envoyer des codes sur cet ordinateur. Demandez la permission à votre administrateur.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_FAILED</source>
        <translation>L’envoi du code a échoué.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_CALL</source>
        <translation>Appelez le %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_MESSAGE</source>
        <translation>Envoyez le SMS «&#xa0;%2&#xa0;» au %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_EMPTY_MESSAGE</source>
        <translation>Envoyez un SMS vide au %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NAME</source>
        <translation>Le nom du profil «&#xa0;%1&#xa0;» est trop long pour une connexion. Raccourcissez-le.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NUMBER</source>
        <translation>Le numéro d’accès de «&#xa0;%1&#xa0;» n’est pas utilisable. Corrigez-le dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_APN</source>
        <translation>Le nom du point d’accès (APN) de «&#xa0;%1&#xa0;» n’est pas utilisable&#xa0;: 64 lettres, chiffres, points, tirets et tirets bas au plus. Corrigez-le dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_ADDRESS</source>
        <translation>L’adresse IP de «&#xa0;%1&#xa0;» n’est pas valide. Corrigez-la dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS</source>
        <translation>L’adresse du serveur DNS de «&#xa0;%1&#xa0;» n’est pas valide. Corrigez-la dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS_ALTERNATIVE</source>
        <translation>L’adresse du serveur DNS secondaire de «&#xa0;%1&#xa0;» n’est pas valide. Corrigez-la dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_USER</source>
        <translation>Le nom d’utilisateur de «&#xa0;%1&#xa0;» ne peut pas être envoyé&#xa0;: 255 octets au plus. Raccourcissez-le.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_PASSWORD</source>
        <translation>Le mot de passe de «&#xa0;%1&#xa0;» ne peut pas être envoyé&#xa0;: 255 octets au plus. Raccourcissez-le.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_PREPARING</source>
        <translation>Préparation du modem</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_REGISTERING</source>
        <translation>Recherche du réseau, ce qui peut prendre une minute</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_CONNECTING</source>
        <translation>Appel du réseau</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_ADDRESSING</source>
        <translation>Demande d’une adresse</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USED_BY</source>
        <translation>Utilisé par %1</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_NUMBER</source>
        <translation>Le numéro d’accès n’a pas d’effet&#xa0;: le modem compose celui du réseau.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_ADDRESS</source>
        <translation>L’adresse IP fixe n’a pas d’effet&#xa0;: le réseau attribue l’adresse.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_WINS</source>
        <translation>Les serveurs WINS n’ont pas d’effet.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_OTHER_ADDRESS</source>
        <translation>L’adresse IP fixe n’a pas pu être obtenue&#xa0;; le réseau a attribué %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_80</source>
        <translation>80 pour cent du volume de données de ce mois sont consommés.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_100</source>
        <translation>Le volume de données de ce mois est épuisé.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_HUNG_UP</source>
        <translation>La connexion automatique attend que vous vous connectiez vous-même.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_READY</source>
        <translation>La connexion automatique attend le modem.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_REGISTERED</source>
        <translation>La connexion automatique attend un réseau.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_ROAMING</source>
        <translation>La connexion automatique ne se fait pas en itinérance.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_IN_USE</source>
        <translation>La connexion automatique attend que le modem soit libre.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_PAUSE</source>
        <translation>La connexion automatique fera bientôt un nouvel essai.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_REFUSED</source>
        <translation>La connexion automatique s’est arrêtée, car le réseau a refusé «&#xa0;%1&#xa0;». Corrigez le nom d’utilisateur et le mot de passe, ou connectez-vous vous-même.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_FAILED</source>
        <translation>La connexion automatique s’est arrêtée&#xa0;: un nouvel essai échouerait de même.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_MUST_ASK</source>
        <translation>La connexion automatique ne peut pas utiliser «&#xa0;%1&#xa0;», qui demande le nom d’utilisateur et le mot de passe.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BYTES</source>
        <translation>%1 o</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBYTES</source>
        <translation>%1 ko</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABYTES</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABYTES</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BITS_PER_SECOND</source>
        <translation>%1 bit/s</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBITS_PER_SECOND</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABITS_PER_SECOND</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABITS_PER_SECOND</source>
        <translation>%1 Gbit/s</translation>
    </message>
</context>
<context>
    <name>NetConnectPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>IDS_TABPAGE_NETCONNECTSETTINGDLG_DIALUP</source>
        <translation>Connexion par modem</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT</source>
        <translation>P&amp;rofil de connexion</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_VALIDATE</source>
        <translation>Authentification</translation>
    </message>
    <message>
        <source>IDS_SETTING_GROUP_Authentication_protocol</source>
        <translation>Protocole d’authentification</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_APN_NAME</source>
        <translation>&amp;APN&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_NUMBER</source>
        <translation>N° d’a&amp;ccès&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_USENAME</source>
        <translation>&amp;Utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_PASSWORD</source>
        <translation>Mo&amp;t de passe&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_DYNAMIC</source>
        <translation>Dynamique</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_STATIC</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>IDS_USERNAME_AND_PASSWORD</source>
        <translation>Demander à &amp;la connexion</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_CHAP</source>
        <translation>C&amp;HAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_PAP</source>
        <translation>&amp;PAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NEW</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_DELETE</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_EDIT</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_SAVE</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NO_SAVE</source>
        <translation>A&amp;bandonner</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>&amp;Définir par défaut</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_INPUT</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_HIGH</source>
        <translation>A&amp;vancé…</translation>
    </message>
    <message>
        <source>IDS_STC_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>(par défaut)</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Paramètres de connexion</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME</source>
        <translation>Veuillez saisir un nom de profil.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME_SAME</source>
        <translation>Un profil portant ce nom existe déjà. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR</source>
        <translation>Le nom du profil ne doit contenir aucun de ces caractères&#xa0;: </translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER</source>
        <translation>Veuillez saisir le numéro d’accès, par exemple *99#.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_ERROR</source>
        <translation>L’APN n’est pas valide. Il peut contenir des lettres, des chiffres, des points et des tirets, et doit commencer et se terminer par une lettre ou un chiffre.</translation>
    </message>
    <message>
        <source>IDS_SMSUI_DRAFT_DEL</source>
        <translation>Voulez-vous supprimer ce profil&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_SETTING_QUERY_USER_TO_SAVE</source>
        <translation>Le profil contient des modifications non enregistrées. Voulez-vous les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_NET_TIPS_PROFILEEXIST</source>
        <translation>existe déjà. Voulez-vous remplacer ce profil&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_SAME_FOR_REMAINING</source>
        <translation>Appliquer la même réponse aux profils restants</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_IP</source>
        <translation>L’adresse IP n’est pas valide. Veuillez en saisir une comme 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_DNS_IP</source>
        <translation>L’adresse du serveur DNS n’est pas valide. Veuillez en saisir une comme 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_WINS_IP</source>
        <translation>L’adresse du serveur WINS n’est pas valide. Veuillez en saisir une comme 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_TITLE_IMPORTDLG</source>
        <translation>Importer des profils</translation>
    </message>
    <message>
        <source>IDS_TITLE_EXPORTDLG</source>
        <translation>Exporter des profils</translation>
    </message>
    <message>
        <source>IDS_TREENODE_PROFILEINPUTDLG_DIALUP</source>
        <translation>Profils de connexion par modem</translation>
    </message>
    <message>
        <source>IDS_SETTING_BROWSE_TELEPHLONE</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>IDS_STC_DIALUPDLG_ADVANCE</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_APN_IP</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_DNS</source>
        <translation>Serveurs DNS</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_WINS</source>
        <translation>Serveurs WINS</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_IP</source>
        <translation>Adresse &amp;IP&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS</source>
        <translation>P&amp;rimaire&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS_SECOND</source>
        <translation>&amp;Secondaire&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS1</source>
        <translation>Pri&amp;maire&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS_SECOND</source>
        <translation>S&amp;econdaire&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_NEW_PROFILE</source>
        <translation>Nouveau profil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_READONLY</source>
        <translation>Ce profil est en lecture seule. Pour le modifier, appuyez sur «&#xa0;Nouveau&#xa0;» et saisissez ses valeurs sous un autre nom.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_PRESET</source>
        <translation>Ce profil est prédéfini. Pour le modifier, fermez les paramètres et appuyez sur Ctrl+N dans la fenêtre principale&#xa0;: un profil à vous sera créé avec les mêmes valeurs.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_CONNECTED</source>
        <translation>Ce profil est connecté. Déconnectez-vous d’abord.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_DEFAULT_CONNECTED</source>
        <translation>Le profil par défaut ne peut pas être changé pendant une connexion. Déconnectez-vous d’abord.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_PROFILE</source>
        <translation>Il n’y a encore aucun profil. Appuyez sur «&#xa0;Nouveau&#xa0;» pour en créer un.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_EDIT_OPEN</source>
        <translation>Un profil est en cours de modification. Appuyez d’abord sur «&#xa0;Enregistrer&#xa0;» ou «&#xa0;Abandonner&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_EDIT</source>
        <translation>Aucun profil n’est en cours de modification. Appuyez d’abord sur «&#xa0;Nouveau&#xa0;» ou «&#xa0;Modifier&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_READONLY</source>
        <translation>Ce profil est en lecture seule.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_PRESET</source>
        <translation>Ce profil est prédéfini.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_CONNECTED</source>
        <translation>Ce profil est connecté.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_SAVE_FAILED</source>
        <translation>Le profil n’a pas pu être enregistré. Rien n’est perdu&#xa0;: corrigez le problème et appuyez de nouveau sur «&#xa0;Enregistrer&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_HINT_PASSWORD</source>
        <translation>Caractères non enregistrables&#xa0;: utilisez uniquement l’alphabet latin occidental.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_LIST</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_NAME</source>
        <translation>Nom du profil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_TRANSFER_TREE</source>
        <translation>Profils à choisir</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_WILDCARD</source>
        <translation>Un nom de fichier ne peut pas contenir «&#xa0;*&#xa0;». Veuillez en saisir un autre.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_MERGE</source>
        <translation>existe déjà. Ses profils sont conservés&#xa0;; ceux de même nom sont remplacés. Exporter dans ce fichier&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_OFF</source>
        <translation>La configuration n’autorise pas l’importation.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_MISSING</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_NONE</source>
        <translation>Le fichier ne contient aucun profil.</translation>
    </message>
</context>
<context>
    <name>OrbisDial</name>
    <message>
        <source>IDS_HOST_TITLE</source>
        <translation>OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_TITLE_SIMULATED</source>
        <translation>OrbisDial (modem simulé)</translation>
    </message>
    <message>
        <source>IDS_HOST_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_HOST_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGES</source>
        <translation>Pages de paramètres</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DEFAULT_PROFILE</source>
        <translation>Aucun profil par défaut</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCONNECT</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTED</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING</source>
        <translation>Connexion en cours…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTED</source>
        <translation>Connecté avec %1</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTING</source>
        <translation>Déconnexion en cours…</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER</source>
        <translation>Aucun module de connexion n’est chargé</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM</source>
        <translation>Carte SIM %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PRESET</source>
        <translation>Carte SIM %1&#xa0;: profil prédéfini «&#xa0;%2&#xa0;», choisi d’après son préfixe %3</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_OPERATOR</source>
        <translation>Carte SIM %1&#xa0;: profil prédéfini «&#xa0;%2&#xa0;», choisi d’après son préfixe %3 et le nom de son opérateur, %4</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PREFIX</source>
        <translation>Carte SIM %1&#xa0;: le préfixe %2 est connu, mais aucun de ses profils prédéfinis n’est proposé par défaut</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_NO_MATCH</source>
        <translation>Carte SIM %1&#xa0;: aucun profil prédéfini ne correspond</translation>
    </message>
    <message>
        <source>IDS_HOST_STORAGE_PROBLEM</source>
        <translation>Problème d’enregistrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_PROBLEM</source>
        <translation>%1 est inutilisable&#xa0;: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD_FAILED</source>
        <translation>le chargement a échoué (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOREIGN</source>
        <translation>ce n’est pas un module de ce programme</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TAKEN</source>
        <translation>un autre module a le même identifiant</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT_FAILED</source>
        <translation>le démarrage a échoué</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PROBLEM</source>
        <translation>Le modem est inutilisable&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NAME</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>Langue&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCK_DEFAULT</source>
        <translation>Conserver le profil par défaut&#xa0;: masquer le bouton «&#xa0;Définir par défaut&#xa0;»</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NOT_SAVED</source>
        <translation>Les paramètres n’ont pas pu être enregistrés.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_LABEL</source>
        <translation>Profil&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE</source>
        <translation>Profil de connexion</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_TIP</source>
        <translation>Choisissez un profil ou tapez une partie de son nom</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_DEFAULT</source>
        <translation>%1 (par défaut)</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_OWN</source>
        <translation>Mes profils</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_PRESETS</source>
        <translation>Profils prédéfinis pour cette carte SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS</source>
        <translation>Profils prédéfinis…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_TITLE</source>
        <translation>Profils prédéfinis des opérateurs du monde entier</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH</source>
        <translation>Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH_HINT</source>
        <translation>Pays, opérateur, forfait, APN ou code de réseau</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_LIST</source>
        <translation>Pays, opérateurs et forfaits</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_NAME</source>
        <translation>Pays, opérateur, forfait</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COUNT</source>
        <translation>Forfaits&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_NONE</source>
        <translation>Aucun résultat. Essayez avec moins de mots ou une autre orthographe.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_OTHER</source>
        <translation>Autres profils prédéfinis</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_PREPAID</source>
        <translation>%1 (prépayé)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_POSTPAID</source>
        <translation>%1 (abonnement)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_HINT</source>
        <translation>Choisissez un forfait pour voir ses valeurs.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_USE</source>
        <translation>Utiliser comme nouveau profil…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_COUNTRY</source>
        <translation>Pays&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_OPERATOR</source>
        <translation>Opérateur&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PLAN</source>
        <translation>Forfait&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN</source>
        <translation>APN&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN_AUTOMATIC</source>
        <translation>choisi par le réseau</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_NUMBER</source>
        <translation>Numéro d’accès&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_USER</source>
        <translation>Utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_ASKED</source>
        <translation>demandé à la connexion</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PASSWORD</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_AUTHENTICATION</source>
        <translation>Authentification&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_DNS</source>
        <translation>DNS&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_CODES</source>
        <translation>Codes de réseau&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_FROM</source>
        <translation>Nouveau à partir de celui-ci…</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_TITLE</source>
        <translation>Nouveau profil</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_INTRO</source>
        <translation>Un profil à vous avec les valeurs de «&#xa0;%1&#xa0;». Vous pourrez les modifier dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_NAME</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_DEFAULT</source>
        <translation>L’utiliser par défaut</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_CONNECTED</source>
        <translation>Le profil par défaut ne peut pas être changé pendant une connexion.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_MAKE</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR</source>
        <translation>Choisir l’opérateur…</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR_DETAIL</source>
        <translation>Aucun profil prédéfini n’est connu pour cette carte SIM. Choisissez votre opérateur ou un profil ci-dessous.</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_TITLE</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK</source>
        <translation>Déverrouiller…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE</source>
        <translation>Solde…</translation>
    </message>
    <message>
        <source>IDS_HOST_QUIT</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_CONNECTION</source>
        <translation>&amp;Connexion</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_HELP</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>IDS_HOST_GUIDE</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>À propos d’OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TITLE</source>
        <translation>À propos d’OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_VERSION</source>
        <translation>OrbisDial %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TEXT</source>
        <translation>Un gestionnaire de connexions pour modems mobiles à haut débit.

Licence MIT. Réalisé avec Qt %1 (LGPL), libsodium (ISC), ICU (Unicode) et la base de données du domaine public mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT_WITH</source>
        <translation>Se connecter avec</translation>
    </message>
    <message>
        <source>IDS_HOST_SHOW_WINDOW</source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER_DETAIL</source>
        <translation>La partie du programme qui établit la connexion est absente. Réinstallez OrbisDial.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING</source>
        <translation>Recherche d’un modem…</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING_DETAIL</source>
        <translation>Cela prend un instant.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE</source>
        <translation>Le service des modems n’est pas disponible</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE_DETAIL</source>
        <translation>OrbisDial trouve les modems grâce à ModemManager, qui n’est pas lancé ou ne répond pas. Installez-le ou relancez-le.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE</source>
        <translation>Le service des connexions n’est pas disponible</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE_DETAIL</source>
        <translation>OrbisDial se connecte grâce à NetworkManager, qui ne répond pas. Relancez-le ou demandez à votre administrateur.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM</source>
        <translation>Aucun modem</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM_DETAIL</source>
        <translation>Branchez un modem. Certains ne sont détectés qu’après une demi-minute.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD</source>
        <translation>Pas de carte SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD_DETAIL</source>
        <translation>Débranchez le modem, insérez une carte SIM, puis rebranchez-le.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED</source>
        <translation>Carte SIM verrouillée</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PIN_DETAIL</source>
        <translation>Elle demande son code PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PUK_DETAIL</source>
        <translation>Trop de codes PIN erronés. La carte demande le code PUK fourni par votre opérateur.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_OTHER_DETAIL</source>
        <translation>Ni le code PIN ni le code PUK ne lèvent ce verrou. Adressez-vous à votre opérateur ou au vendeur du modem.</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING</source>
        <translation>Démarrage du modem…</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING_DETAIL</source>
        <translation>Il sera prêt dans un instant.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED</source>
        <translation>Modem non prêt</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED_DETAIL</source>
        <translation>Débranchez-le et rebranchez-le.</translation>
    </message>
    <message>
        <source>IDS_HOST_NOT_REGISTERED</source>
        <translation>Non inscrit sur un réseau</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCHING</source>
        <translation>Recherche d’un réseau…</translation>
    </message>
    <message>
        <source>IDS_HOST_DENIED</source>
        <translation>Le réseau refuse cette carte SIM. Adressez-vous à votre opérateur.</translation>
    </message>
    <message>
        <source>IDS_HOST_SIGNAL</source>
        <translation>signal %1&#xa0;%</translation>
    </message>
    <message>
        <source>IDS_HOST_ROAMING</source>
        <translation>itinérance</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING_TO</source>
        <translation>Connexion avec %1…</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED</source>
        <translation>Connexion impossible</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_WITH</source>
        <translation>Connexion avec %1 impossible</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_UP</source>
        <translation>La connexion avec %1 a été interrompue</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_ENDED</source>
        <translation>La connexion avec %1 a été terminée</translation>
    </message>
    <message>
        <source>IDS_HOST_DETAILS</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>IDS_HOST_TRY_AGAIN</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>IDS_HOST_CURVE</source>
        <translation>Transfert des trois dernières minutes</translation>
    </message>
    <message>
        <source>IDS_HOST_DOWN_UP</source>
        <translation>↓ %1  ↑ %2</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH</source>
        <translation>Ce mois-ci&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH_OF</source>
        <translation>Ce mois-ci&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_TITLE</source>
        <translation>Déverrouiller la carte SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_TITLE</source>
        <translation>Solde de la carte SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_COMMAND</source>
        <translation>%1 indique le solde d’une carte prépayée en réponse au code %2. Rien n’est envoyé avant que vous n’appuyiez sur «&#xa0;Demander&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_HAND</source>
        <translation>%1 indique le solde de cette façon, à faire vous-même&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_UNKNOWN</source>
        <translation>La façon dont votre opérateur indique le solde n’est pas connue ici. Si vous connaissez son code, saisissez-le&#xa0;; rien n’est envoyé avant que vous n’appuyiez sur «&#xa0;Demander&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_COMMAND</source>
        <translation>Code&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_ASK</source>
        <translation>Demander</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_REPLY</source>
        <translation>Votre réponse&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_SEND</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_WAITING</source>
        <translation>En attente du réseau…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_NOT_NOW</source>
        <translation>Aucun modem capable d’envoyer des codes au réseau n’est prêt.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN_INTRO</source>
        <translation>La carte SIM demande son code PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK_INTRO</source>
        <translation>Trop de codes PIN erronés. Saisissez le code PUK fourni par votre opérateur et choisissez un nouveau code PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN</source>
        <translation>Code PIN&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK</source>
        <translation>Code PUK&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NEW_PIN</source>
        <translation>Nouveau code PIN&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_REPEAT_PIN</source>
        <translation>Confirmer le code PIN&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOW</source>
        <translation>Déverrouiller</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS</source>
        <translation>Tentatives restantes&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS_UNKNOWN</source>
        <translation>Le nombre de tentatives restantes est inconnu.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PIN</source>
        <translation>En cas d’erreur, la carte demandera le code PUK.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PUK</source>
        <translation>En cas d’erreur, la carte sera définitivement inutilisable.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_USE_LAST</source>
        <translation>Utiliser la dernière tentative</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PENDING</source>
        <translation>La carte vérifie…</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_WRONG</source>
        <translation>Le code est erroné.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOT_ALLOWED</source>
        <translation>Vous n’êtes pas autorisé à déverrouiller la carte. Adressez-vous à l’administrateur de cet ordinateur.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_FAILED</source>
        <translation>La carte n’a pas pu être déverrouillée. %1</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTIFY</source>
        <translation>Afficher des messages sur la connexion</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE_TO_TRAY</source>
        <translation>À la fermeture de la fenêtre, laisser le programme dans la zone de notification</translation>
    </message>
    <message>
        <source>IDS_HOST_START_WITH_SESSION</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>IDS_HOST_STAYS_CONNECTED</source>
        <translation>Rester connecté à la fermeture du programme</translation>
    </message>
    <message>
        <source>IDS_HOST_LIMIT</source>
        <translation>Limite mensuelle de données de cette carte SIM&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_LIMIT</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>IDS_HOST_END_DISCONNECTS</source>
        <translation>Vous êtes connecté. La connexion prendra fin avec le programme.</translation>
    </message>
    <message>
        <source>IDS_HOST_END_STAYS</source>
        <translation>Vous êtes connecté et le resterez après la fermeture du programme.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_TITLE</source>
        <translation>Modem simulé</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_IMSI</source>
        <translation>IMSI&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARD</source>
        <translation>pas de carte</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_READY</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_MULTI_MODE</source>
        <translation>Carte multimode</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE</source>
        <translation>Mode de carte&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE_NONE</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PRODUCT_TYPE</source>
        <translation>Type de modem&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_MODE</source>
        <translation>Mode système&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_SUBMODE</source>
        <translation>Sous-mode&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_OUTCOME</source>
        <translation>Appel&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ANSWERS</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARRIER</source>
        <translation>Pas de porteuse</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_AUTHENTICATION_FAILS</source>
        <translation>Échec d’authentification</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_SIGNAL</source>
        <translation>Pas de signal</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_INITIALISE</source>
        <translation>Initialiser</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CHANGE_CARD</source>
        <translation>Changer de carte</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SETTING</source>
        <translation>Réglage&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_DROP</source>
        <translation>Couper la connexion</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_FAILED</source>
        <translation>Rien n’a été importé de %1.
%2</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_BUSY</source>
        <translation>Terminez d’abord ce qui est ouvert, puis rouvrez le fichier.</translation>
    </message>
</context>
<context>
    <name>Programs</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (chosen by the user)</source>
        <translation>%1 (choisi par l’utilisateur)</translation>
    </message>
    <message>
        <source>%1 (proposed by the configuration)</source>
        <translation>%1 (proposé par la configuration)</translation>
    </message>
    <message>
        <source>%1 (simulated modem)</source>
        <translation>%1 (modem simulé)</translation>
    </message>
    <message>
        <source>%1 Put -- before a name that begins with a hyphen.</source>
        <translation>%1 Mettez -- devant un nom qui commence par un tiret.</translation>
    </message>
    <message>
        <source>%1 bytes received, %2 sent</source>
        <translation>%1 octets reçus, %2 envoyés</translation>
    </message>
    <message>
        <source>%1 holds no profile %2</source>
        <translation>%1 ne contient pas de profil %2</translation>
    </message>
    <message>
        <source>%1 is a preset; make one of your own from it: %2</source>
        <translation>%1 est un profil prédéfini&#xa0;; créez le vôtre à partir de celui-ci&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is connected; see orbisctl disconnect</source>
        <translation>%1 est connecté&#xa0;; voir orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is being connected; see orbisctl disconnect</source>
        <translation>%1 est en cours de connexion&#xa0;; voir orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is no field to set; fields: %2</source>
        <translation>%1 n’est pas un champ modifiable&#xa0;; champs&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is no limit; say a volume such as 500MB or 1.5GB</source>
        <translation>%1 n'est pas une limite&#xa0;; indiquez un volume comme 500MB ou 1.5GB</translation>
    </message>
    <message>
        <source>%1 is read-only; make one of your own from it: %2</source>
        <translation>%1 est en lecture seule&#xa0;; créez le vôtre à partir de celui-ci&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 may be more than one command: %2</source>
        <translation>%1 peut désigner plusieurs commandes&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 names a modem, and counts before the choice</source>
        <translation>%1 désigne un modem et l’emporte sur ce choix</translation>
    </message>
    <message>
        <source>%1 of %2 were no IMSI, which has 5 to 15 digits</source>
        <translation>ne sont pas des IMSI (5 à 15 chiffres)&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>%1 percent of the limit of %2</source>
        <translation>%1 pour cent de la limite de %2</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1, %2&#xa0;:</translation>
    </message>
    <message>
        <source>%1, at most %2 characters</source>
        <translation>%1, %2 caractères au plus</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2 received, %3 sent, %4 together</source>
        <translation>%1&#xa0;: %2 reçus, %3 envoyés, %4 en tout</translation>
    </message>
    <message>
        <source>%1: can't be written: %2</source>
        <translation>%1&#xa0;: écriture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: does not exist</source>
        <translation>%1&#xa0;: n’existe pas</translation>
    </message>
    <message>
        <source>%1: holds no template for new profiles; see --like</source>
        <translation>%1&#xa0;: ne contient pas de modèle pour les nouveaux profils&#xa0;; voir --like</translation>
    </message>
    <message>
        <source>%1: is no profile file; --force replaces it</source>
        <translation>%1&#xa0;: n’est pas un fichier de profils&#xa0;; --force le remplace</translation>
    </message>
    <message>
        <source>%1: is the user's profile file itself</source>
        <translation>%1&#xa0;: c’est le fichier de profils de l’utilisateur lui-même</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1&#xa0;: ligne %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1: no prefix matches; the configuration's own presets</source>
        <translation>%1&#xa0;: aucun préfixe ne correspond&#xa0;; profils prédéfinis de la configuration</translation>
    </message>
    <message>
        <source>%1: not UTF-8 on standard input</source>
        <translation>%1&#xa0;: pas en UTF-8 sur l’entrée standard</translation>
    </message>
    <message>
        <source>%1: not an IMSI</source>
        <translation>%1&#xa0;: n’est pas un IMSI</translation>
    </message>
    <message>
        <source>%1: prefix %2</source>
        <translation>%1&#xa0;: préfixe %2</translation>
    </message>
    <message>
        <source>%1: standard input holds none</source>
        <translation>%1&#xa0;: absent de l’entrée standard</translation>
    </message>
    <message>
        <source>%1; give a new one with password=</source>
        <translation>%1&#xa0;; donnez-en un nouveau avec password=</translation>
    </message>
    <message>
        <source>%1; it ends with this program, see --hold</source>
        <translation>%1&#xa0;; elle prend fin avec ce programme, voir --hold</translation>
    </message>
    <message>
        <source>%1; then the card asks for its PUK; --last takes it</source>
        <translation>%1&#xa0;; ensuite la carte demandera son code PUK&#xa0;; --last l’utilise</translation>
    </message>
    <message>
        <source>%1; then the card is lost; --last takes it</source>
        <translation>%1&#xa0;; ensuite la carte sera inutilisable&#xa0;; --last l’utilise</translation>
    </message>
    <message>
        <source>%1; waits, since the network refused user name or password</source>
        <translation>%1&#xa0;; en attente, car le réseau a refusé le nom d’utilisateur ou le mot de passe</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(masqué)</translation>
    </message>
    <message>
        <source>--clear takes no modem</source>
        <translation>--clear ne prend pas de modem</translation>
    </message>
    <message>
        <source>--json goes with neither --terse nor --fields</source>
        <translation>--json ne va ni avec --terse ni avec --fields</translation>
    </message>
    <message>
        <source>--roaming goes with on</source>
        <translation>--roaming ne va qu’avec on</translation>
    </message>
    <message>
        <source>--timeout takes a number of seconds from 1 to 86400</source>
        <translation>--timeout attend un nombre de secondes de 1 à 86400</translation>
    </message>
    <message>
        <source>A profile file to import; the window asks first.</source>
        <translation>Un fichier de profils à importer&#xa0;; la fenêtre demande d’abord confirmation.</translation>
    </message>
    <message>
        <source>Add a profile. password=- reads the password from standard input.</source>
        <translation>Ajouter un profil. password=- lit le mot de passe sur l’entrée standard.</translation>
    </message>
    <message>
        <source>All profiles of one's own.</source>
        <translation>Tous les profils personnels.</translation>
    </message>
    <message>
        <source>Answer (none ends the session): </source>
        <translation>Réponse (vide pour terminer la session)&#xa0;: </translation>
    </message>
    <message>
        <source>Ask the network for a prepaid card's balance.</source>
        <translation>Demander au réseau le solde d’une carte prépayée.</translation>
    </message>
    <message>
        <source>Change fields of a profile; name=NEW renames it.</source>
        <translation>Modifier des champs d’un profil&#xa0;; name=NOUVEAU le renomme.</translation>
    </message>
    <message>
        <source>Command-line client of the OrbisDial connection manager.</source>
        <translation>Client en ligne de commande du gestionnaire de connexions OrbisDial.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>Connect with a profile, or with the default.</source>
        <translation>Se connecter avec un profil, ou avec celui par défaut.</translation>
    </message>
    <message>
        <source>Connection manager for mobile-broadband modems.</source>
        <translation>Gestionnaire de connexions pour modems mobiles.</translation>
    </message>
    <message>
        <source>Delete profiles: all of them, or none.</source>
        <translation>Supprimer des profils&#xa0;: tous ceux nommés, ou aucun.</translation>
    </message>
    <message>
        <source>End the connection, or give it up.</source>
        <translation>Terminer la connexion, ou y renoncer.</translation>
    </message>
    <message>
        <source>Export profiles into a file; others that it holds stay.</source>
        <translation>Exporter des profils dans un fichier&#xa0;; les autres y restent.</translation>
    </message>
    <message>
        <source>Fields:</source>
        <translation>Champs&#xa0;:</translation>
    </message>
    <message>
        <source>GID1</source>
        <translation>GID1</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>Import all profiles of a file, or the named ones.</source>
        <translation>Importer tous les profils d’un fichier, ou ceux nommés.</translation>
    </message>
    <message>
        <source>Keep the user's profiles in this folder.</source>
        <translation>Conserver les profils de l’utilisateur dans ce dossier.</translation>
    </message>
    <message>
        <source>List all profiles; * marks the default.</source>
        <translation>Lister tous les profils&#xa0;; * marque celui par défaut.</translation>
    </message>
    <message>
        <source>List the modems; * marks the one in use.</source>
        <translation>Lister les modems&#xa0;; * marque celui utilisé.</translation>
    </message>
    <message>
        <source>New PIN again: </source>
        <translation>Confirmer le code PIN&#xa0;: </translation>
    </message>
    <message>
        <source>New PIN: </source>
        <translation>Nouveau code PIN&#xa0;: </translation>
    </message>
    <message>
        <source>Open the settings at this page: its title or its plug-in's name.</source>
        <translation>Ouvrir les paramètres à cette page&#xa0;: son titre ou le nom de son module.</translation>
    </message>
    <message>
        <source>PIN (%1): </source>
        <translation>Code PIN (%1)&#xa0;: </translation>
    </message>
    <message>
        <source>PUK (%1): </source>
        <translation>Code PUK (%1)&#xa0;: </translation>
    </message>
    <message>
        <source>Password [as stored]: </source>
        <translation>Mot de passe [celui enregistré]&#xa0;: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Mot de passe&#xa0;: </translation>
    </message>
    <message>
        <source>Replace a file even if it holds something else than profiles.</source>
        <translation>Remplacer un fichier même s’il contient autre chose que des profils.</translation>
    </message>
    <message>
        <source>Replace profiles whose names exist; without it they are skipped.</source>
        <translation>Remplacer les profils dont le nom existe&#xa0;; sinon ils sont ignorés.</translation>
    </message>
    <message>
        <source>Save all profiles of one's own, and the chosen default, in a file.</source>
        <translation>Sauvegarder dans un fichier tous les profils personnels et le choix du profil par défaut.</translation>
    </message>
    <message>
        <source>See orbisctl COMMAND --help.</source>
        <translation>Voir orbisctl COMMAND --help.</translation>
    </message>
    <message>
        <source>Send a command such as *100# to the network and show its answer.</source>
        <translation>Envoyer un code comme *100# au réseau et afficher sa réponse.</translation>
    </message>
    <message>
        <source>Show a value of the function configuration, or all.</source>
        <translation>Afficher une valeur de la configuration des fonctions, ou toutes.</translation>
    </message>
    <message>
        <source>Show each month that is kept.</source>
        <translation>Afficher chaque mois conservé.</translation>
    </message>
    <message>
        <source>Show the connection.</source>
        <translation>Afficher la connexion.</translation>
    </message>
    <message>
        <source>Show the default profile, or choose it.</source>
        <translation>Afficher le profil par défaut, ou le choisir.</translation>
    </message>
    <message>
        <source>Show the fields of profiles.</source>
        <translation>Afficher les champs de profils.</translation>
    </message>
    <message>
        <source>Show the modem in use, or choose one by its key, IMEI or port.</source>
        <translation>Afficher le modem utilisé, ou en choisir un par sa clé, son IMEI ou son port.</translation>
    </message>
    <message>
        <source>Show the password too.</source>
        <translation>Afficher aussi le mot de passe.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Show this help, or that of a command.</source>
        <translation>Afficher cette aide, ou celle d’une commande.</translation>
    </message>
    <message>
        <source>Show what the SIM card moved this month, or set its limit.</source>
        <translation>Afficher ce que la carte SIM a transféré ce mois-ci, ou fixer sa limite.</translation>
    </message>
    <message>
        <source>Show what the modem and its SIM card report, and the connection.</source>
        <translation>Afficher ce que signalent le modem et sa carte SIM, et la connexion.</translation>
    </message>
    <message>
        <source>Speak this language, e.g. "de" or "zh_CN".</source>
        <translation>Parler cette langue, p. ex. «&#xa0;de&#xa0;» ou «&#xa0;zh_CN&#xa0;».</translation>
    </message>
    <message>
        <source>Spend the last attempt, too.</source>
        <translation>Utiliser même la dernière tentative.</translation>
    </message>
    <message>
        <source>Start from this profile instead of the template for new ones.</source>
        <translation>Partir de ce profil au lieu du modèle des nouveaux profils.</translation>
    </message>
    <message>
        <source>Start in the desktop's tray, without a window, where there is one.</source>
        <translation>Démarrer dans la zone de notification, sans fenêtre, s’il y en a une.</translation>
    </message>
    <message>
        <source>Stay, and hang up on Ctrl-C.</source>
        <translation>Rester, et se déconnecter à Ctrl-C.</translation>
    </message>
    <message>
        <source>Stay, and show each change.</source>
        <translation>Rester, et afficher chaque changement.</translation>
    </message>
    <message>
        <source>Take profiles and default from a backup; those of other names stay.</source>
        <translation>Reprendre d’une sauvegarde les profils et celui par défaut&#xa0;; les autres restent.</translation>
    </message>
    <message>
        <source>Take the choice back.</source>
        <translation>Annuler le choix.</translation>
    </message>
    <message>
        <source>Take the limit away.</source>
        <translation>Supprimer la limite.</translation>
    </message>
    <message>
        <source>Tell what is wrong with the shipped files, or with these.</source>
        <translation>Dire ce qui ne va pas dans les fichiers fournis, ou dans ceux-ci.</translation>
    </message>
    <message>
        <source>Tell which presets SIM cards select; - reads IMSIs from standard input.</source>
        <translation>Dire quels profils prédéfinis les cartes SIM choisissent&#xa0;; - lit les IMSI sur l’entrée standard.</translation>
    </message>
    <message>
        <source>This is a simulated modem.</source>
        <translation>Ceci est un modem simulé.</translation>
    </message>
    <message>
        <source>Unlock the SIM card with its PUK and set a new PIN, a line each.</source>
        <translation>Déverrouiller la carte SIM avec son code PUK et définir un nouveau code PIN, un par ligne.</translation>
    </message>
    <message>
        <source>Unlock the SIM card; the PIN is asked for, or read from standard input.</source>
        <translation>Déverrouiller la carte SIM&#xa0;; le code PIN est demandé, ou lu sur l’entrée standard.</translation>
    </message>
    <message>
        <source>Use this modem: %1.</source>
        <translation>Utiliser ce modem&#xa0;: %1.</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Nom d’utilisateur [%1]&#xa0;: </translation>
    </message>
    <message>
        <source>Wait no longer than so many seconds.</source>
        <translation>Ne pas attendre plus que ce nombre de secondes.</translation>
    </message>
    <message>
        <source>Warn at 80 and 100 percent of so much a month, such as 500MB or 1.5GB.</source>
        <translation>Avertir à 80 et 100 pour cent de ce volume par mois, comme 500MB ou 1.5GB.</translation>
    </message>
    <message>
        <source>What the SIM cards call their operator.</source>
        <translation>Comment les cartes SIM nomment leur opérateur.</translation>
    </message>
    <message>
        <source>Whether the window connects with a profile by itself.</source>
        <translation>Si la fenêtre se connecte d’elle-même avec un profil.</translation>
    </message>
    <message>
        <source>While roaming, too.</source>
        <translation>Y compris en itinérance.</translation>
    </message>
    <message>
        <source>Write a picture of the window as a PNG file, and end.</source>
        <translation>Enregistrer une image de la fenêtre dans un fichier PNG et quitter.</translation>
    </message>
    <message>
        <source>Write results as JSON, one object a line.</source>
        <translation>Écrire les résultats en JSON, un objet par ligne.</translation>
    </message>
    <message>
        <source>Write results as fields between tabs, for scripts.</source>
        <translation>Écrire les résultats en champs séparés par des tabulations, pour les scripts.</translation>
    </message>
    <message>
        <source>Write these fields only, in this order; their names are those of --json.</source>
        <translation>N’écrire que ces champs, dans cet ordre&#xa0;; leurs noms sont ceux de --json.</translation>
    </message>
    <message>
        <source>Write traces to standard error.</source>
        <translation>Écrire des traces sur la sortie d’erreur standard.</translation>
    </message>
    <message>
        <source>a PIN has 4 to 8 digits</source>
        <translation>un code PIN a de 4 à 8 chiffres</translation>
    </message>
    <message>
        <source>a PUK has 8 digits</source>
        <translation>un code PUK a 8 chiffres</translation>
    </message>
    <message>
        <source>a picture is taken without a file to import</source>
        <translation>une image se prend sans fichier à importer</translation>
    </message>
    <message>
        <source>an IPv4 address, or nothing</source>
        <translation>une adresse IPv4, ou rien</translation>
    </message>
    <message>
        <source>an argument is not FIELD=VALUE; fields: %1</source>
        <translation>un argument n’est pas de la forme CHAMP=VALEUR&#xa0;; champs&#xa0;: %1</translation>
    </message>
    <message>
        <source>an option's value is empty</source>
        <translation>la valeur d’une option est vide</translation>
    </message>
    <message>
        <source>argument %1 is not UTF-8</source>
        <translation>l’argument %1 n’est pas en UTF-8</translation>
    </message>
    <message>
        <source>attempts left: %1</source>
        <translation>tentatives restantes&#xa0;: %1</translation>
    </message>
    <message>
        <source>attempts to unlock</source>
        <translation>tentatives restantes</translation>
    </message>
    <message>
        <source>automatically</source>
        <translation>automatiquement</translation>
    </message>
    <message>
        <source>backend</source>
        <translation>moteur</translation>
    </message>
    <message>
        <source>by the card's operator name %1: %2</source>
        <translation>d’après le nom d’opérateur de la carte, %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>can't be dialled with</source>
        <translation>ne permet pas de composer</translation>
    </message>
    <message>
        <source>can't write the picture %1</source>
        <translation>impossible d’écrire l’image %1</translation>
    </message>
    <message>
        <source>no limit is set</source>
        <translation>aucune limite n'est fixée</translation>
    </message>
    <message>
        <source>no window can be opened: %1</source>
        <translation>impossible d’ouvrir une fenêtre&#xa0;: %1</translation>
    </message>
    <message>
        <source>card</source>
        <translation>carte</translation>
    </message>
    <message>
        <source>card mode (2 is CDMA)</source>
        <translation>mode de carte (2&#xa0;: CDMA)</translation>
    </message>
    <message>
        <source>card's operator</source>
        <translation>opérateur de la carte</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>choisi</translation>
    </message>
    <message>
        <source>chosen, not plugged in</source>
        <translation>choisi, non branché</translation>
    </message>
    <message>
        <source>complete is for the shells' completions</source>
        <translation>complete sert à la complétion des shells</translation>
    </message>
    <message>
        <source>config takes one key; see config --check</source>
        <translation>config prend une seule clé&#xa0;; voir config --check</translation>
    </message>
    <message>
        <source>connected: %1</source>
        <translation>connecté&#xa0;: %1</translation>
    </message>
    <message>
        <source>connecting: %1: %2</source>
        <translation>connexion&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>connexion</translation>
    </message>
    <message>
        <source>customise name</source>
        <translation>nom de personnalisation</translation>
    </message>
    <message>
        <source>data-service user</source>
        <translation>utilisateur du service</translation>
    </message>
    <message>
        <source>default takes a name or --clear, not both</source>
        <translation>default prend un nom ou --clear, pas les deux</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>refusée</translation>
    </message>
    <message>
        <source>dials as CDMA</source>
        <translation>compose en CDMA</translation>
    </message>
    <message>
        <source>disconnected: %1</source>
        <translation>déconnecté&#xa0;: %1</translation>
    </message>
    <message>
        <source>disconnecting: %1</source>
        <translation>déconnexion&#xa0;: %1</translation>
    </message>
    <message>
        <source>export takes names or --all</source>
        <translation>export prend des noms ou --all</translation>
    </message>
    <message>
        <source>exported %1 to %2</source>
        <translation>%1 exporté vers %2</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>en panne</translation>
    </message>
    <message>
        <source>generation</source>
        <translation>génération</translation>
    </message>
    <message>
        <source>home</source>
        <translation>réseau d’origine</translation>
    </message>
    <message>
        <source>how %1 tells a balance is not known; see orbisctl ussd CODE</source>
        <translation>on ignore comment %1 indique le solde&#xa0;; voir orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>how many attempts are left is not known</source>
        <translation>le nombre de tentatives restantes est inconnu</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inactive</translation>
    </message>
    <message>
        <source>imported %1</source>
        <translation>%1 importé</translation>
    </message>
    <message>
        <source>letters, digits, dots and hyphens</source>
        <translation>lettres, chiffres, points et tirets</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>verrou</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>verrouillé</translation>
    </message>
    <message>
        <source>manufacturer</source>
        <translation>fabricant</translation>
    </message>
    <message>
        <source>matched IMSI prefix</source>
        <translation>préfixe IMSI reconnu</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modèle</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>modem</translation>
    </message>
    <message>
        <source>multi-mode card</source>
        <translation>carte multimode</translation>
    </message>
    <message>
        <source>neither the profile nor the SIM card tells the operator; see orbisctl ussd CODE</source>
        <translation>ni le profil ni la carte SIM n’indiquent l’opérateur&#xa0;; voir orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>network</source>
        <translation>réseau</translation>
    </message>
    <message>
        <source>network's code</source>
        <translation>code du réseau</translation>
    </message>
    <message>
        <source>new name</source>
        <translation>nouveau nom</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>no command is given; see orbisctl --help</source>
        <translation>aucune commande&#xa0;; voir orbisctl --help</translation>
    </message>
    <message>
        <source>no connection in time</source>
        <translation>pas de connexion dans le délai</translation>
    </message>
    <message>
        <source>no event counter can be had: %1</source>
        <translation>aucun compteur d’événements disponible&#xa0;: %1</translation>
    </message>
    <message>
        <source>no language "%1"; there are: %2</source>
        <translation>pas de langue «&#xa0;%1&#xa0;»&#xa0;; il y a&#xa0;: %2</translation>
    </message>
    <message>
        <source>no page "%1"; there are: %2</source>
        <translation>pas de page «&#xa0;%1&#xa0;»&#xa0;; il y a&#xa0;: %2</translation>
    </message>
    <message>
        <source>no temporary folder: %1</source>
        <translation>pas de dossier temporaire&#xa0;: %1</translation>
    </message>
    <message>
        <source>no-modem</source>
        <translation>aucun modem</translation>
    </message>
    <message>
        <source>none</source>
        <translation>néant</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connecté</translation>
    </message>
    <message>
        <source>not connected: %1</source>
        <translation>non connecté&#xa0;: %1</translation>
    </message>
    <message>
        <source>not connected; the modem is in use by %1</source>
        <translation>non connecté&#xa0;; le modem est utilisé par %1</translation>
    </message>
    <message>
        <source>note</source>
        <translation>remarque</translation>
    </message>
    <message>
        <source>nothing can tell of connections</source>
        <translation>rien ne renseigne sur les connexions</translation>
    </message>
    <message>
        <source>nothing can tell of modems</source>
        <translation>rien ne renseigne sur les modems</translation>
    </message>
    <message>
        <source>nothing has been counted yet</source>
        <translation>rien n'a encore été compté</translation>
    </message>
    <message>
        <source>nothing was imported from %1</source>
        <translation>rien n’a été importé de %1</translation>
    </message>
    <message>
        <source>nothing was sent: %1 tells a balance by message or phone alone</source>
        <translation>rien n’a été envoyé&#xa0;: %1 n’indique le solde que par SMS ou par téléphone</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivée</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activée</translation>
    </message>
    <message>
        <source>on, roaming too</source>
        <translation>activée, y compris en itinérance</translation>
    </message>
    <message>
        <source>only one of these goes at a time: %1</source>
        <translation>une seule de ces options à la fois&#xa0;: %1</translation>
    </message>
    <message>
        <source>other</source>
        <translation>autre</translation>
    </message>
    <message>
        <source>others can read a password on the command line in the list of processes; use password=-</source>
        <translation>un mot de passe sur la ligne de commande est lisible par d’autres dans la liste des processus&#xa0;; utilisez password=-</translation>
    </message>
    <message>
        <source>own number</source>
        <translation>numéro de la carte</translation>
    </message>
    <message>
        <source>password</source>
        <translation>mot de passe</translation>
    </message>
    <message>
        <source>password: only Latin-1 characters can be stored sealed</source>
        <translation>password&#xa0;: seuls les caractères Latin-1 peuvent être enregistrés chiffrés</translation>
    </message>
    <message>
        <source>pin</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>port</source>
        <translation>port</translation>
    </message>
    <message>
        <source>present</source>
        <translation>présente</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>prédéfini</translation>
    </message>
    <message>
        <source>preset, default</source>
        <translation>prédéfini, par défaut</translation>
    </message>
    <message>
        <source>product type (1 is CDMA)</source>
        <translation>type de modem (1&#xa0;: CDMA)</translation>
    </message>
    <message>
        <source>profiles restored: %1</source>
        <translation>profils restaurés&#xa0;: %1</translation>
    </message>
    <message>
        <source>profiles saved to %1: %2</source>
        <translation>profils sauvegardés dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>proposed default</source>
        <translation>profil proposé</translation>
    </message>
    <message>
        <source>proposed for</source>
        <translation>proposé pour</translation>
    </message>
    <message>
        <source>puk</source>
        <translation>PUK</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prêt</translation>
    </message>
    <message>
        <source>registration</source>
        <translation>inscription au réseau</translation>
    </message>
    <message>
        <source>replaced %1</source>
        <translation>%1 remplacé</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>itinérance</translation>
    </message>
    <message>
        <source>same     %1</source>
        <translation>%1 inchangé</translation>
    </message>
    <message>
        <source>say on or off, not %1</source>
        <translation>indiquez on ou off, et non %1</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>recherche</translation>
    </message>
    <message>
        <source>signal in percent</source>
        <translation>signal en pour cent</translation>
    </message>
    <message>
        <source>skipped  %1 (exists; see --replace)</source>
        <translation>%1 ignoré (existe&#xa0;; voir --replace)</translation>
    </message>
    <message>
        <source>standard input can't be read</source>
        <translation>l’entrée standard ne peut pas être lue</translation>
    </message>
    <message>
        <source>standard input can't be read: %1</source>
        <translation>l’entrée standard ne peut pas être lue&#xa0;: %1</translation>
    </message>
    <message>
        <source>starting</source>
        <translation>démarrage</translation>
    </message>
    <message>
        <source>state</source>
        <translation>état</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>état %1</translation>
    </message>
    <message>
        <source>status (3 is ready)</source>
        <translation>état (3&#xa0;: prêt)</translation>
    </message>
    <message>
        <source>system mode</source>
        <translation>mode système</translation>
    </message>
    <message>
        <source>system sub-mode</source>
        <translation>sous-mode système</translation>
    </message>
    <message>
        <source>takes USSD commands</source>
        <translation>accepte l’USSD</translation>
    </message>
    <message>
        <source>technology</source>
        <translation>technologie</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>the backup can't be read</source>
        <translation>la sauvegarde ne peut pas être lue</translation>
    </message>
    <message>
        <source>the card asks for its %1; see orbisctl %2</source>
        <translation>la carte demande son code %1&#xa0;; voir orbisctl %2</translation>
    </message>
    <message>
        <source>the card asks for no %1</source>
        <translation>la carte ne demande pas de code %1</translation>
    </message>
    <message>
        <source>the card can't be unlocked</source>
        <translation>la carte ne peut pas être déverrouillée</translation>
    </message>
    <message>
        <source>the card does not answer; whether it took the code is not known</source>
        <translation>la carte ne répond pas&#xa0;; on ignore si elle a accepté le code</translation>
    </message>
    <message>
        <source>the card is locked in a way that neither PIN nor PUK opens</source>
        <translation>la carte a un verrou que ni le code PIN ni le code PUK ne lèvent</translation>
    </message>
    <message>
        <source>the card is unlocked</source>
        <translation>la carte est déverrouillée</translation>
    </message>
    <message>
        <source>the card takes no code now</source>
        <translation>la carte n’accepte pas de code pour l’instant</translation>
    </message>
    <message>
        <source>the card's operator name %1 tells none of these</source>
        <translation>le nom d’opérateur de la carte, %1, n’en désigne aucun</translation>
    </message>
    <message>
        <source>the choice can't be kept in the settings</source>
        <translation>le choix ne peut pas être enregistré dans les paramètres</translation>
    </message>
    <message>
        <source>the configuration customised for %1 leaves no presets by IMSI</source>
        <translation>la configuration personnalisée pour %1 ne laisse aucun profil prédéfini par IMSI</translation>
    </message>
    <message>
        <source>the configuration has no presets by IMSI</source>
        <translation>la configuration n’a pas de profils prédéfinis par IMSI</translation>
    </message>
    <message>
        <source>the connection can't be ended</source>
        <translation>la connexion ne peut pas être terminée</translation>
    </message>
    <message>
        <source>the connection has not ended yet</source>
        <translation>la connexion n’est pas encore terminée</translation>
    </message>
    <message>
        <source>the connection of %1 is not ours to end</source>
        <translation>la connexion de %1 n’est pas la nôtre</translation>
    </message>
    <message>
        <source>the connection was ended elsewhere</source>
        <translation>la connexion a été terminée ailleurs</translation>
    </message>
    <message>
        <source>the data folder %1 can't be made or entered</source>
        <translation>le dossier de données %1 ne peut pas être créé ou ouvert</translation>
    </message>
    <message>
        <source>the data folder %1 is not a folder</source>
        <translation>le dossier de données %1 n’est pas un dossier</translation>
    </message>
    <message>
        <source>the data volume can't be stored</source>
        <translation>le volume de données ne peut pas être enregistré</translation>
    </message>
    <message>
        <source>the default can't be cleared</source>
        <translation>le profil par défaut ne peut pas être effacé</translation>
    </message>
    <message>
        <source>the default can't be restored</source>
        <translation>le profil par défaut ne peut pas être restauré</translation>
    </message>
    <message>
        <source>the default can't be set</source>
        <translation>le profil par défaut ne peut pas être défini</translation>
    </message>
    <message>
        <source>the field %1 is given twice</source>
        <translation>le champ %1 est donné deux fois</translation>
    </message>
    <message>
        <source>the file can't be imported</source>
        <translation>le fichier ne peut pas être importé</translation>
    </message>
    <message>
        <source>the file's name is empty</source>
        <translation>le nom du fichier est vide</translation>
    </message>
    <message>
        <source>the limit can't be stored</source>
        <translation>la limite ne peut pas être enregistrée</translation>
    </message>
    <message>
        <source>the modem does not answer</source>
        <translation>le modem ne répond pas</translation>
    </message>
    <message>
        <source>the modem is not ready for a command, or another one is under way</source>
        <translation>le modem n’est pas prêt pour un code, ou un autre est en cours</translation>
    </message>
    <message>
        <source>the modem's backend can't be had</source>
        <translation>le moteur du modem n’est pas disponible</translation>
    </message>
    <message>
        <source>the name is empty; see default --clear</source>
        <translation>le nom est vide&#xa0;; voir default --clear</translation>
    </message>
    <message>
        <source>the network did not answer in time</source>
        <translation>le réseau n’a pas répondu à temps</translation>
    </message>
    <message>
        <source>the new profile's name is the first argument</source>
        <translation>le nom du nouveau profil est le premier argument</translation>
    </message>
    <message>
        <source>the password of %1 is not base64, as its encrypttype says; set it again</source>
        <translation>le mot de passe de %1 n’est pas en base64 comme l’indique encrypttype&#xa0;; redéfinissez-le</translation>
    </message>
    <message>
        <source>the profile can't be added</source>
        <translation>le profil ne peut pas être ajouté</translation>
    </message>
    <message>
        <source>the profile can't be changed</source>
        <translation>le profil ne peut pas être modifié</translation>
    </message>
    <message>
        <source>the profile can't be deleted</source>
        <translation>le profil ne peut pas être supprimé</translation>
    </message>
    <message>
        <source>the profile library does not hold the preset %1</source>
        <translation>la bibliothèque de profils ne contient pas le profil prédéfini %1</translation>
    </message>
    <message>
        <source>the profiles can't be changed</source>
        <translation>les profils ne peuvent pas être modifiés</translation>
    </message>
    <message>
        <source>the profiles can't be exported</source>
        <translation>les profils ne peuvent pas être exportés</translation>
    </message>
    <message>
        <source>the profiles can't be imported</source>
        <translation>les profils ne peuvent pas être importés</translation>
    </message>
    <message>
        <source>the profiles can't be listed</source>
        <translation>les profils ne peuvent pas être listés</translation>
    </message>
    <message>
        <source>the profiles can't be restored</source>
        <translation>les profils ne peuvent pas être restaurés</translation>
    </message>
    <message>
        <source>the profiles can't be stored</source>
        <translation>les profils ne peuvent pas être enregistrés</translation>
    </message>
    <message>
        <source>the session has ended</source>
        <translation>la session est terminée</translation>
    </message>
    <message>
        <source>the settings can't be stored</source>
        <translation>les paramètres ne peuvent pas être enregistrés</translation>
    </message>
    <message>
        <source>the settings of automatic connection can't be stored</source>
        <translation>les paramètres de la connexion automatique ne peuvent pas être enregistrés</translation>
    </message>
    <message>
        <source>the two PINs differ</source>
        <translation>les deux codes PIN diffèrent</translation>
    </message>
    <message>
        <source>there are no profiles %1</source>
        <translation>il n’y a pas de profils %1</translation>
    </message>
    <message>
        <source>there is a profile %1 already</source>
        <translation>il y a déjà un profil %1</translation>
    </message>
    <message>
        <source>there is no SIM card</source>
        <translation>il n’y a pas de carte SIM</translation>
    </message>
    <message>
        <source>there is no configuration key %1</source>
        <translation>il n’y a pas de clé de configuration %1</translation>
    </message>
    <message>
        <source>there is no default profile; name one: orbisctl connect NAME</source>
        <translation>il n’y a pas de profil par défaut&#xa0;; nommez-en un&#xa0;: orbisctl connect NAME</translation>
    </message>
    <message>
        <source>there is no field %1; there are: %2</source>
        <translation>il n’y a pas de champ %1&#xa0;; il y a&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no modem</source>
        <translation>il n’y a pas de modem</translation>
    </message>
    <message>
        <source>there is no modem %1; see orbisctl modems</source>
        <translation>il n’y a pas de modem %1&#xa0;; voir orbisctl modems</translation>
    </message>
    <message>
        <source>there is no profile %1</source>
        <translation>il n’y a pas de profil %1</translation>
    </message>
    <message>
        <source>there is no profile of one's own</source>
        <translation>il n’y a aucun profil personnel</translation>
    </message>
    <message>
        <source>this user may not unlock the card</source>
        <translation>cet utilisateur n’est pas autorisé à déverrouiller la carte</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>unexpected argument: %1</source>
        <translation>argument inattendu&#xa0;: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnue</translation>
    </message>
    <message>
        <source>unknown command %1; see orbisctl --help</source>
        <translation>commande inconnue %1&#xa0;; voir orbisctl --help</translation>
    </message>
    <message>
        <source>unknown device %1; use one of %2</source>
        <translation>périphérique inconnu %1&#xa0;; possibles&#xa0;: %2</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>usage&#xa0;: %1</translation>
    </message>
    <message>
        <source>user</source>
        <translation>perso.</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>nom d’utilisateur</translation>
    </message>
    <message>
        <source>user, default</source>
        <translation>perso., par défaut</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>attention&#xa0;: %1</translation>
    </message>
    <message>
        <source>what was counted can't be read, or is damaged</source>
        <translation>ce qui a été compté ne peut pas être lu, ou est endommagé</translation>
    </message>
    <message>
        <source>wrong %1: %2</source>
        <translation>code %1 erroné&#xa0;: %2</translation>
    </message>
    <message>
        <source>wrong %1: nothing opens the card any more</source>
        <translation>code %1 erroné&#xa0;: plus rien ne déverrouille la carte</translation>
    </message>
    <message>
        <source>wrong %1: the card now asks for its PUK</source>
        <translation>code %1 erroné&#xa0;: la carte demande maintenant son code PUK</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: at most %2 characters</source>
        <translation>%1&#xa0;: %2 caractères au plus</translation>
    </message>
    <message>
        <source>%1: control characters can't be stored</source>
        <translation>%1&#xa0;: les caractères de contrôle ne peuvent pas être enregistrés</translation>
    </message>
    <message>
        <source>%1: may hold letters, digits, dots and hyphens</source>
        <translation>%1&#xa0;: peut contenir des lettres, des chiffres, des points et des tirets</translation>
    </message>
    <message>
        <source>%1: must be empty or an IPv4 address such as 192.0.2.1</source>
        <translation>%1&#xa0;: doit être vide ou une adresse IPv4 comme 192.0.2.1</translation>
    </message>
    <message>
        <source>%1: must be true or false</source>
        <translation>%1&#xa0;: doit être true ou false</translation>
    </message>
    <message>
        <source>Mobile broadband is switched off</source>
        <translation>Le haut débit mobile est désactivé</translation>
    </message>
    <message>
        <source>NetworkManager can't use the modem now</source>
        <translation>NetworkManager ne peut pas utiliser le modem pour l’instant</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager ne répond pas</translation>
    </message>
    <message>
        <source>ORBISDIAL_DEVICE names no device backend; use simulated, modemmanager, none or auto</source>
        <translation>ORBISDIAL_DEVICE ne désigne aucun moteur&#xa0;; possibles&#xa0;: simulated, modemmanager, none ou auto</translation>
    </message>
    <message>
        <source>a link in a folder where others may have put it is not followed: %1</source>
        <translation>un lien que d’autres ont pu mettre dans le dossier n’est pas suivi&#xa0;: %1</translation>
    </message>
    <message>
        <source>a name has at most %1 characters</source>
        <translation>un nom a %1 caractères au plus</translation>
    </message>
    <message>
        <source>a name must not contain any of %1</source>
        <translation>un nom ne doit contenir aucun de ces caractères&#xa0;: %1</translation>
    </message>
    <message>
        <source>a name must not contain control characters</source>
        <translation>un nom ne doit pas contenir de caractères de contrôle</translation>
    </message>
    <message>
        <source>a password can't be sealed</source>
        <translation>un mot de passe ne peut pas être chiffré</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>un profil doit avoir un nom</translation>
    </message>
    <message>
        <source>a profile needs an access number, for example phonenumber=*99#</source>
        <translation>un profil doit avoir un numéro d’accès, par exemple phonenumber=*99#</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>un élément a plus de %1 attributs</translation>
    </message>
    <message>
        <source>another program keeps it locked</source>
        <translation>un autre programme le tient verrouillé</translation>
    </message>
    <message>
        <source>apn: must begin and end with a letter or a digit</source>
        <translation>apn&#xa0;: doit commencer et se terminer par une lettre ou un chiffre</translation>
    </message>
    <message>
        <source>can't be locked</source>
        <translation>verrouillage impossible</translation>
    </message>
    <message>
        <source>can't be locked: it is not a regular file</source>
        <translation>verrouillage impossible&#xa0;: ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>can't be looked at</source>
        <translation>consultation impossible</translation>
    </message>
    <message>
        <source>can't be opened</source>
        <translation>ouverture impossible</translation>
    </message>
    <message>
        <source>can't be read now; what was last read of it stays in force</source>
        <translation>lecture impossible pour l’instant&#xa0;; ce qui a été lu en dernier reste valable</translation>
    </message>
    <message>
        <source>can't be read: %1</source>
        <translation>lecture impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>can't be written as XML</source>
        <translation>écriture en XML impossible</translation>
    </message>
    <message>
        <source>can't close</source>
        <translation>fermeture impossible</translation>
    </message>
    <message>
        <source>can't create a file in the folder</source>
        <translation>impossible de créer un fichier dans le dossier</translation>
    </message>
    <message>
        <source>can't enter the folder</source>
        <translation>accès au dossier impossible</translation>
    </message>
    <message>
        <source>can't enter the root folder</source>
        <translation>accès au dossier racine impossible</translation>
    </message>
    <message>
        <source>can't flush to disk</source>
        <translation>écriture sur le disque impossible</translation>
    </message>
    <message>
        <source>can't look at the folder</source>
        <translation>consultation du dossier impossible</translation>
    </message>
    <message>
        <source>can't read a link</source>
        <translation>lecture d’un lien impossible</translation>
    </message>
    <message>
        <source>can't replace</source>
        <translation>remplacement impossible</translation>
    </message>
    <message>
        <source>can't set the file's mode</source>
        <translation>impossible de définir les droits du fichier</translation>
    </message>
    <message>
        <source>can't set the file's owner</source>
        <translation>impossible de définir le propriétaire du fichier</translation>
    </message>
    <message>
        <source>can't write</source>
        <translation>écriture impossible</translation>
    </message>
    <message>
        <source>elements stand more than %1 deep in one another</source>
        <translation>des éléments sont imbriqués sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>every name for a copy of the damaged file is taken</source>
        <translation>tous les noms pour une copie du fichier endommagé sont pris</translation>
    </message>
    <message>
        <source>is damaged, and can't be kept: %1</source>
        <translation>est endommagé et ne peut pas être conservé&#xa0;: %1</translation>
    </message>
    <message>
        <source>is no file's name</source>
        <translation>n’est pas un nom de fichier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is too large: %1 of at most %2 MB</source>
        <translation>trop volumineux&#xa0;: %1 Mo, pour %2 Mo au plus</translation>
    </message>
    <message>
        <source>leads to no file</source>
        <translation>ne mène à aucun fichier</translation>
    </message>
    <message>
        <source>not written: it would be too large to be read again, %1 of at most %2 MB</source>
        <translation>non écrit&#xa0;: trop volumineux pour être relu, %1 Mo, pour %2 Mo au plus</translation>
    </message>
    <message>
        <source>other programs make and remove it all the time</source>
        <translation>d’autres programmes le créent et le suppriment sans cesse</translation>
    </message>
    <message>
        <source>profiles can't be exported to this file</source>
        <translation>les profils ne peuvent pas être exportés vers ce fichier</translation>
    </message>
    <message>
        <source>reading failed</source>
        <translation>échec de la lecture</translation>
    </message>
    <message>
        <source>the XML declaration is too long</source>
        <translation>la déclaration XML est trop longue</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: %2</source>
        <translation>le moteur «&#xa0;%1&#xa0;» ne peut pas être chargé&#xa0;: %2</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: it belongs to another version</source>
        <translation>le moteur «&#xa0;%1&#xa0;» ne peut pas être chargé&#xa0;: il appartient à une autre version</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: there is no %2</source>
        <translation>le moteur «&#xa0;%1&#xa0;» ne peut pas être chargé&#xa0;: %2 n’existe pas</translation>
    </message>
    <message>
        <source>the device backend can't start</source>
        <translation>le moteur du modem ne peut pas démarrer</translation>
    </message>
    <message>
        <source>the document type declares entities or attributes</source>
        <translation>le type de document déclare des entités ou des attributs</translation>
    </message>
    <message>
        <source>the output can't be written: %1</source>
        <translation>la sortie ne peut pas être écrite&#xa0;: %1</translation>
    </message>
    <message>
        <source>the process was made by one that uses the modem</source>
        <translation>le processus a été créé par un autre qui utilise le modem</translation>
    </message>
    <message>
        <source>the sealed password of "%1" was changed outside and can't be opened</source>
        <translation>le mot de passe chiffré de «&#xa0;%1&#xa0;» a été modifié de l’extérieur et ne peut pas être déchiffré</translation>
    </message>
    <message>
        <source>the user data directory can't be had</source>
        <translation>le dossier de données de l’utilisateur n’est pas disponible</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>il y a plus de %1 éléments</translation>
    </message>
    <message>
        <source>there are more than %1 namespaces</source>
        <translation>il y a plus de %1 espaces de noms</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>il n’y a pas assez de mémoire pour cela</translation>
    </message>
    <message>
        <source>was damaged (%1); the damaged file is kept as %2</source>
        <translation>était endommagé (%1)&#xa0;; le fichier endommagé est conservé sous %2</translation>
    </message>
    <message>
        <source>was removed while the profiles were being changed</source>
        <translation>a été supprimé pendant la modification des profils</translation>
    </message>
    <message>
        <source>written, but the folder can't be flushed to disk</source>
        <translation>écrit, mais le dossier n’a pas pu être écrit sur le disque</translation>
    </message>
</context>
</TS>
