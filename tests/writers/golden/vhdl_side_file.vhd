--==== top.vhd ====
--top d
--


-- (legal notice)




--filter COEF1=5 COEF3=9 d q
--

 USE work.filters.all;

--synthesis_resources = fir 1 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg132 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mg132;

 ARCHITECTURE RTL OF top_mg132 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u_fir_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  fir
	 GENERIC 
	 (
		COEF	:	coefficients := (OTHERS => 0);
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
		COEF => ( 1 => 5,3 => 9, OTHERS => 0)
	  )
	  PORT MAP ( 
		d => d,
		q => wire_u_fir_q
	  );

 END RTL; --top_mg132

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
	 COMPONENT  top_mg132
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_u_q;
	u :  top_mg132
	  PORT MAP ( 
		d => d,
		q => wire_u_q
	  );

 END RTL; --top
--VALID FILE
