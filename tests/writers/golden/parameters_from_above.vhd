--top MODE="SLOW" RATE=48 COEF0=3 COEF2=5 WORD1=Late d
--


-- (legal notice)




--middle d q
--

--synthesis_resources = fir 1 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg4s IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mg4s;

 ARCHITECTURE RTL OF top_mg4s IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u_fir_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  fir
	 GENERIC 
	 (
		MODE	:	STRING := "";
		RATE	:	NATURAL;
		SIZE	:	NATURAL;
		lpm_hint	:	STRING := "UNUSED"
	 );
	 PORT
	 ( 
		d	:	IN STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_u_fir_q;
	u_fir :  fir
	  GENERIC MAP (
		MODE => "SLOW",
		RATE => 48,
		SIZE => 4
	  )
	  PORT MAP ( 
		d => d,
		q => wire_u_fir_q
	  );

 END RTL; --top_mg4s

--synthesis_resources = fir 1 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  top_mg4s
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_u_q;
	u :  top_mg4s
	  PORT MAP ( 
		d => d,
		q => wire_u_q
	  );

 END RTL; --top
--VALID FILE
